#include "tools/json_writer.h"

#include <cstdio>

namespace cijferwerf::json {

void output::finish() {
    flush();
    if (std::fflush(stdout) != 0) throw write_failed{};
}

void output::flush() {
    if (std::fwrite(pending_.data(), 1, pending_.size(), stdout) != pending_.size()) throw write_failed{};
    pending_.clear();
}

void put(output& out, std::string_view text) {
    constexpr std::string_view hex = "0123456789abcdef";
    out << '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            out << '\\' << c;
        else if (code < 0x20)
            out << "\\u00" << hex[code >> 4] << hex[code & 15];
        else
            out << c;
    }
    out << '"';
}

} // namespace cijferwerf::json
