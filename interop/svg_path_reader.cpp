#include "interop/svg_path_reader.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace {

bool isAnyOf(char c, std::string_view letters) {
    return c != '\0' && letters.find(c) != std::string_view::npos;
}

// Commands one after the other; the pen is where the last one ended.
class Reader {
public:
    explicit Reader(const gk_Text& text) : at_(text) {}

    std::vector<gk_Subpath> whole() {
        for (at_.skipSpaces(); !at_.atEnd(); at_.skipSpaces()) command();
        return std::move(parts_);
    }

private:
    void command() {
        const std::size_t offset = at_.offset();
        const char letter = at_.peek();
        if (isAnyOf(letter, "CcSsQqTtAa"))
            at_.text().unsupported(offset, "curves and arcs are not read; contours have straight segments");
        if (!isAnyOf(letter, "MmLlHhVvZz")) at_.bad("one of the commands M, L, H, V and Z was expected");
        if (parts_.empty() && !isAnyOf(letter, "Mm")) at_.bad("a path begins with the command M");
        at_.step();
        if (isAnyOf(letter, "Zz")) {
            close();
        } else {
            if (!isAnyOf(letter, "Mm") && penIsUp_) begin(offset);
            arguments(letter, offset);
        }
    }

    void close() { // once more where it has been closed: nothing changes
        parts_.back().closed = true;
        pen_ = parts_.back().ring.vertices.front();
        penIsUp_ = true;
    }

    // A contour that begins where the pen is.
    void begin(std::size_t offset) {
        at_.text().addRing(rings_, offset);
        parts_.emplace_back();
        parts_.back().ring.offset = offset;
        parts_.back().ring.vertices.push_back(pen_);
        penIsUp_ = false;
    }

    void arguments(char letter, std::size_t offset) {
        bool isFirst = true;
        at_.skipSpaces();
        do {
            pen_ = target(letter);
            if (isAnyOf(letter, "Mm") && isFirst)
                begin(offset);
            else
                parts_.back().ring.vertices.push_back(pen_);
            isFirst = false;
        } while (another());
    }

    gkVector<2> target(char letter) {
        const std::size_t offset = at_.offset();
        const bool relative = isAnyOf(letter, "mlhv");
        gkVector<2> to = pen_;
        if (!isAnyOf(letter, "Vv")) to.x(at_.number() + (relative ? pen_.x() : kNothing));
        if (isAnyOf(letter, "MmLl")) another();
        if (!isAnyOf(letter, "Hh")) to.y(at_.number() + (relative ? pen_.y() : kNothing));
        if (!std::isfinite(to.x()) || !std::isfinite(to.y()))
            at_.text().bad(offset, "a position within the range of double was expected");
        return to;
    }

    // Goes to the next number and tells whether there is one; behind a comma there must be.
    bool another() {
        at_.skipSpaces();
        const bool comma = at_.take(',');
        if (comma) at_.skipSpaces();
        return comma || at_.text().numberLength(at_.offset()) > 0;
    }

    // What changes no number when it is added, negative zero included.
    static constexpr double kNothing = -0.0;

    gk_TextCursor at_;
    std::vector<gk_Subpath> parts_;
    std::size_t rings_ = 0;
    gkVector<2> pen_; // a path that begins with m counts from the origin
    bool penIsUp_ = true;
};

} // namespace

std::vector<gk_Subpath> gk_ReadSvgPath(const gk_Text& text) { return Reader(text).whole(); }
