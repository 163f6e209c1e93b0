// Makes recordings to measure with: always the same bytes for the same arguments, on every machine.
//
//     make_recording OBJECTS FILE lines|drawing

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace {

/// splitmix64: the distributions of <random> differ between standard libraries.
class Dice
{
public:
    std::uint64_t below(std::uint64_t limit)
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return (mixed ^ (mixed >> 31)) % limit;
    }
    bool chance(std::uint64_t percent) { return below(100) < percent; }

private:
    std::uint64_t state_ = 20240229;
};

class Lines
{
public:
    explicit Lines(const char* path) : file_(path, std::ios::binary) {}

    Lines& operator<<(std::string_view text)
    {
        text_ += text;
        return *this;
    }
    Lines& operator<<(std::uint64_t number) { return append(number, 10); }
    Lines& handle(std::uint64_t value) { return append(value, 16); }

    /// A number with up to `decimals` decimals, in units of the last one.
    Lines& decimal(std::uint64_t units, int decimals)
    {
        std::uint64_t one = 1;
        for (int i = 0; i < decimals; ++i)
            one *= 10;
        *this << units / one;
        std::uint64_t fraction = units % one;
        if (fraction == 0)
            return *this;
        text_ += '.';
        for (one /= 10; fraction > 0; one /= 10) {
            text_ += static_cast<char>('0' + fraction / one);
            fraction %= one;
        }
        return *this;
    }

    void end()
    {
        text_ += '\n';
        if (text_.size() > 1 << 20)
            write();
    }
    bool finish()
    {
        write();
        file_.flush();
        return file_.good();
    }

private:
    Lines& append(std::uint64_t value, int base)
    {
        char digits[20];
        const char* const end = std::to_chars(std::begin(digits), std::end(digits), value, base).ptr;
        for (const char* digit = digits; digit != end; ++digit)
            text_ += *digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit;
        return *this;
    }
    void write()
    {
        file_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
        text_.clear();
    }

    std::ofstream file_;
    std::string text_;
};

enum class Form
{
    Zero,
    Length, ///< up to 1000 drawing units
    Radius, ///< above 0
    Offset, ///< on both sides of 0
    Angle   ///< radians, one turn
};

struct Tag
{
    std::string_view name;
    Form form;
};

struct Kind
{
    std::uint64_t percent;
    std::string_view command;
    std::string_view cls;
    std::span<const Tag> tags;
};

constexpr Tag lineTags[] = {{"Start X", Form::Length}, {"Start Y", Form::Length}, {"Start Z", Form::Zero},
                            {"End X", Form::Length},   {"End Y", Form::Length},   {"End Z", Form::Zero}};
constexpr Tag circleTags[] = {
    {"Center X", Form::Length}, {"Center Y", Form::Length}, {"Center Z", Form::Zero}, {"Radius", Form::Radius}};
constexpr Tag arcTags[] = {{"Center X", Form::Length}, {"Center Y", Form::Length},   {"Center Z", Form::Zero},
                           {"Radius", Form::Radius},   {"Start Angle", Form::Angle}, {"End Angle", Form::Angle}};
constexpr Tag pointTags[] = {{"Position X", Form::Length}, {"Position Y", Form::Length}, {"Position Z", Form::Length}};
constexpr Tag ellipseTags[] = {{"Center X", Form::Length},
                               {"Center Y", Form::Length},
                               {"Center Z", Form::Zero},
                               {"Major axis vector X", Form::Offset},
                               {"Major axis vector Y", Form::Offset},
                               {"Major axis vector Z", Form::Zero},
                               {"Minor radius", Form::Radius},
                               {"Start angle", Form::Angle},
                               {"End angle", Form::Angle}};
constexpr Tag throughTags[] = {{"Base point X", Form::Length},   {"Base point Y", Form::Length},
                               {"Base point Z", Form::Zero},     {"Second point X", Form::Length},
                               {"Second point Y", Form::Length}, {"Second point Z", Form::Zero}};

constexpr Kind kinds[] = {
    {60, "LINE", "AcDbLine", lineTags},
    {14, "CIRCLE", "AcDbCircle", circleTags},
    {10, "ARC", "AcDbArc", arcTags},
    {6, "POINT", "AcDbPoint", pointTags},
    {5, "ELLIPSE", "AcDbEllipse", ellipseTags},
    {2, "RAY", "AcDbRay", throughTags},
    {3, "INFINITELINE", "AcDbXline", throughTags},
};

constexpr std::uint64_t firstHandle = 0x100;
constexpr std::uint64_t firstLayer = 0x10;
constexpr std::uint64_t layers = 8;

class Maker
{
public:
    /// `groups`: whether property records name their group.
    Maker(Lines& out, bool groups) : out_(out), groups_(groups) {}

    void lines(std::uint64_t count)
    {
        for (; count > 0; --count) {
            added(kinds[0]);
            out_.end();
        }
    }

    void drawing(std::uint64_t count)
    {
        head();
        while (count > 0) {
            const std::uint64_t children = std::min<std::uint64_t>(count, 1 + dice_.below(40));
            const Kind& kind = anyKind();
            command(kind, children);
            count -= children;
            if (dice_.chance(15))
                changes(kind, children);
            if (dice_.chance(10)) {
                sysVar();
                out_.end();
            }
        }
    }

private:
    void head()
    {
        out_ << R"({"recording":{"version":1,"sheet":{"name":"Model","model":true}}})";
        out_.end();
        out_ << R"({"drawing":{"currentLayout":"22"}})";
        out_.end();
        for (std::uint64_t layer = 0; layer < layers; ++layer) {
            out_ << R"({"object":{"class":"AcDbLayerTableRecord","handle":")";
            out_.handle(firstLayer + layer) << R"(","name":"Layer )" << layer << R"("}})";
            out_.end();
        }
        out_ << R"({"object":{"class":"AcDbLinetypeTableRecord","handle":"1A","name":"Continuous"}})";
        out_.end();
        out_ << R"({"object":{"class":"AcDbLayout","handle":"22","layoutName":"Model","modelType":true}})";
        out_.end();
    }

    const Kind& anyKind()
    {
        std::uint64_t roll = dice_.below(100);
        const Kind* kind = kinds;
        for (; roll >= kind->percent; ++kind)
            roll -= kind->percent;
        return *kind;
    }

    void command(const Kind& kind, std::uint64_t children)
    {
        out_ << R"({"command":{"name":")" << kind.command << R"(","actions":[)";
        interaction("Specify start point&raquo; ");
        for (; children > 0; --children) {
            if (dice_.chance(40)) {
                out_ << ",";
                interaction("Options: Undo, Enter to exit or<br>Specify next point&raquo; ");
            }
            out_ << ",";
            added(kind);
        }
        if (dice_.chance(5)) {
            out_ << ",";
            sysVar();
        }
        out_ << "]}}";
        out_.end();
    }

    /// Some of the last command's objects are restyled or moved.
    void changes(const Kind& kind, std::uint64_t last)
    {
        out_ << R"({"command":{"name":"PROPERTIES","actions":[)";
        for (std::uint64_t i = 1; i <= std::min<std::uint64_t>(last, 5); ++i) {
            if (i > 1)
                out_ << ",";
            out_ << R"({"modified":{"class":")" << kind.cls << R"(","handle":")";
            out_.handle(nextHandle_ - i) << R"(","properties":[{"tag":")";
            if (&kind != kinds || dice_.chance(50)) {
                out_ << R"(Layer","value":{"id":")";
                out_.handle(firstLayer + dice_.below(layers)) << R"("}}]}})";
            } else {
                out_ << R"(End X","value":)";
                number(Form::Length);
                out_ << "}]}}";
            }
        }
        out_ << "]}}";
        out_.end();
    }

    void color()
    {
        if (dice_.chance(70))
            out_ << R"("bylayer")";
        else if (dice_.chance(70))
            out_ << R"({"index":)" << 1 + dice_.below(255) << "}";
        else
            out_ << R"({"rgb":[)" << dice_.below(256) << "," << dice_.below(256) << "," << dice_.below(256) << "]}";
    }

    void interaction(std::string_view prompt)
    {
        out_ << R"({"interaction":{"kind":"point","prompt":")" << prompt << R"(","result":{"point3d":[)";
        number(Form::Length);
        out_ << ",";
        number(Form::Length);
        out_ << R"(,0]}}})";
    }

    void sysVar()
    {
        out_ << R"({"sysvar":{"name":"TEXTSIZE","value":{"double":)";
        number(Form::Radius);
        out_ << "}}}";
    }

    void added(const Kind& kind)
    {
        out_ << R"({"added":{"class":")" << kind.cls << R"(","handle":")";
        out_.handle(nextHandle_++) << R"(","properties":[)";
        const std::string_view geometry = groups_ ? R"(,"group":"Geometry"})" : "}";
        const std::string_view general = groups_ ? R"(,"group":"General"})" : "}";
        for (const Tag& tag : kind.tags) {
            out_ << R"({"tag":")" << tag.name << R"(","value":)";
            number(tag.form);
            out_ << geometry << ",";
        }
        out_ << R"({"tag":"LineColor","value":{"color":)";
        color();
        out_ << "}" << general;
        out_ << R"(,{"tag":"Layer","value":{"id":")";
        out_.handle(firstLayer + dice_.below(layers)) << R"("})" << general;
        out_ << R"(,{"tag":"LineStyle","value":{"id":"1A"})" << general;
        out_ << R"(,{"tag":"LineScale","value":1)" << general;
        out_ << R"(,{"tag":"LineWeight","value":{"int":-1})" << general;
        out_ << R"(,{"tag":"Thickness","value":0)" << general << "]}}";
    }

    void number(Form form)
    {
        switch (form) {
        case Form::Zero:
            out_ << "0";
            break;
        case Form::Length:
            out_.decimal(dice_.below(10'000'000), 4);
            break;
        case Form::Radius:
            out_.decimal(1 + dice_.below(50'000), 3);
            break;
        case Form::Offset:
            if (dice_.chance(50))
                out_ << "-";
            out_.decimal(1 + dice_.below(100'000), 3);
            break;
        case Form::Angle:
            out_.decimal(dice_.below(6'283'185), 6);
            break;
        }
    }

    Lines& out_;
    bool groups_;
    Dice dice_;
    std::uint64_t nextHandle_ = firstHandle;
};

} // namespace

int main(int argc, char** argv)
{
    std::uint64_t count = 0;
    const char* const digits = argc == 4 ? argv[1] : "";
    const std::string_view kind = argc == 4 ? argv[3] : "";
    const char* const end = digits + std::strlen(digits);
    const std::from_chars_result parsed = std::from_chars(digits, end, count);
    if (parsed.ec != std::errc() || parsed.ptr != end || (kind != "lines" && kind != "drawing")) {
        std::fputs("usage: make_recording OBJECTS FILE lines|drawing\n", stderr);
        return 2;
    }

    Lines out(argv[2]);
    Maker maker(out, kind == "drawing");
    if (kind == "lines")
        maker.lines(count);
    else
        maker.drawing(count);
    if (!out.finish()) {
        std::fprintf(stderr, "make_recording: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
