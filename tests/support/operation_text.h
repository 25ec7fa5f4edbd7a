// Drawing operations as short lines of text, so that a test can say what it expects to be drawn and a failure reads
// well. It judges nothing.
#pragma once

#include "runtime/picture_box.h"

#include <sstream>

namespace cijferwerf {

struct operation_texter {
    static std::string joined(const auto&... parts) {
        std::ostringstream out;
        (out << ... << parts);
        return out.str();
    }
    static std::string with(const pen& pen) {
        return joined(" colour ", int{pen.colour}, " width ", pen.width, " style ", static_cast<int>(pen.style));
    }
    std::string operator()(const text_op& op) const {
        return joined("text ", op.x, ',', op.y, " colour ", int{op.colour}, " size ", op.size, " \"", op.text, '"');
    }
    std::string operator()(const line_op& op) const {
        return joined("line ", op.from.x, ',', op.from.y, " to ", op.to.x, ',', op.to.y, with(op.pen));
    }
    std::string operator()(const box_op& op) const {
        return joined(op.filled ? "filled box " : "box ", op.x, ',', op.y, ' ', op.width, 'x', op.height, with(op.pen));
    }
    std::string operator()(const circle_op& op) const {
        return joined(op.filled ? "filled circle " : "circle ", op.centre.x, ',', op.centre.y, ' ', op.radius_x, 'x',
                      op.radius_y, " from ", op.start, " over ", op.sweep, with(op.pen));
    }
    std::string operator()(const polygon_op& op) const {
        return joined("polygon of ", op.corners.size(), with(op.pen));
    }
    std::string operator()(const picture_op& op) const { return joined("picture ", op.file); }
};

inline std::vector<std::string> as_texts(const drawing& drawn) {
    std::vector<std::string> texts;
    for (const drawing_op& operation : drawn.operations()) texts.push_back(std::visit(operation_texter{}, operation));
    return texts;
}

} // namespace cijferwerf
