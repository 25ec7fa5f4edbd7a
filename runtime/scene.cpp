#include "runtime/scene.h"

namespace cijferwerf {

void move(scene& moved, int right, int down) {
    const auto shift = [&]<class Op>(Op& op) {
        if constexpr (std::same_as<Op, scene_text>) {
            op.x += right;
            op.baseline += down;
        } else if constexpr (std::same_as<Op, scene_stroke>) {
            for (point& each : op.points) each = {each.x + right, each.y + down};
        } else {
            op.at.left += right;
            op.at.top += down;
        }
    };
    for (scene_op& op : moved) std::visit(shift, op);
}

} // namespace cijferwerf
