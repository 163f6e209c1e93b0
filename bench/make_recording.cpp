// Makes recordings to measure with: always the same bytes for the same arguments, on every machine.
//
//     make_recording COUNT FILE lines|drawing|polyline|block|hatch|command|properties|selection
//
// COUNT are objects, but the vertices of the one polyline, the entities of the one block, the objects that bound the
// one hatch, the actions of the one command, the properties that the one table changes, or the handles of the one
// selection.

#include "Lines.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <span>
#include <string_view>

namespace {

enum class Form
{
    Zero,
    Length, ///< up to 1000 drawing units
    Exact,  ///< the same with about all digits that a double has, as points have that were picked or computed
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

constexpr Tag insertionTags[] = {{"Position X", Form::Length}, {"Position Y", Form::Length}, {"Position Z", Form::Zero},
                                 {"Scale X", Form::Radius},    {"Scale Y", Form::Radius},    {"Scale Z", Form::Radius},
                                 {"Rotation", Form::Angle}};

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
/// Objects of the drawing that hatches lie between.
constexpr std::uint64_t firstBoundary = 0x40;
constexpr std::uint64_t boundaries = 100;
/// The block that is in the drawing before all others.
constexpr std::string_view firstBlock = "Bolt";

class Maker
{
public:
    /// `groups`: whether property records name their group.
    Maker(Lines& out, bool groups)
        : out_(out),
          geometry_(groups ? R"(,"group":"Geometry"})" : "}"),
          general_(groups ? R"(,"group":"General"})" : "}")
    {
    }

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
            count -= dice_.chance(70) ? simpleObjects(count) : otherObjects(count);
            if (dice_.chance(10)) {
                sysVar();
                out_.end();
            }
        }
    }

    /// One polyline, outside of commands.
    void longPolyline(std::uint64_t vertices)
    {
        polyline(vertices, Form::Exact);
        out_.end();
    }

    /// Lines, and the block that is made of them.
    void largeBlock(std::uint64_t entities)
    {
        lineCommand(entities);
        blockDefinition(entities);
    }

    /// One hatch over lines of the drawing, which the macro has to draw for it.
    void largeHatch(std::uint64_t objects)
    {
        boundaryLines(firstHandle, objects);
        nextHandle_ += objects;
        openCommand("HATCH");
        hatchHead(true);
        out_ << R"({"ids":[)";
        for (std::uint64_t i = 0; i < objects; ++i) {
            separate(i);
            out_ << R"(")";
            out_.handle(firstHandle + i) << R"(")";
        }
        out_ << "]},";
        hatchEnd();
        closeCommand();
    }

    /// One command that asks for three points before each line. With more lines a million actions would not fit into
    /// the 256 MiB that one line of a recording may have.
    void longCommand(std::uint64_t actions)
    {
        openCommand("LINE");
        for (std::uint64_t i = 0; i < actions; ++i) {
            separate(i);
            if (i % 4 < 3)
                interaction("Specify next point&raquo; ");
            else
                added(kinds[0]);
        }
        closeCommand();
    }

    /// A table, and one change of it: new rows with their heights and texts, each between two tags that no table has.
    void changedTable(std::uint64_t properties)
    {
        constexpr std::uint64_t columns = 4;
        const std::uint64_t handle = nextHandle_;
        openCommand("TABLE");
        beginAdded("AcDbTable");
        out_ << R"({"tag":"Rows","value":{"int":1})" << geometry_ << R"(,{"tag":"Columns","value":{"int":)" << columns
             << "}" << geometry_ << ",";
        endEntity();
        out_ << R"(,{"modified":{"class":"AcDbTable","handle":")";
        out_.handle(handle) << R"(","properties":[)";
        for (std::uint64_t i = 0, row = 0; i < properties; ++i, row = i / 4) {
            separate(i);
            if (i % 2 == 0)
                out_ << R"({"tag":"Remark_)" << i << R"(","value":"as built")";
            else if (i % 4 == 1)
                out_ << R"({"tag":"RowHeight_)" << row << R"(","value":)" << 5 + row % 3;
            else
                out_ << R"({"tag":"Contents_)" << row << "_" << row % columns << R"(","value":"Pos. )" << row << R"(")";
            out_ << general_;
        }
        separate(properties);
        out_ << R"({"tag":"Rows","value":{"int":)" << properties / 4 << "}" << general_ << "]}}";
        closeCommand();
    }

    /// One selection, half of lines that were in the drawing, half of lines that the recording added.
    void longSelection(std::uint64_t handles)
    {
        const std::uint64_t there = handles / 2;
        boundaryLines(firstHandle, there);
        nextHandle_ += there;
        lineCommand(handles - there);
        openCommand("MOVE");
        out_ << R"({"selection":{"objects":[)";
        for (std::uint64_t i = 0; i < handles; ++i) {
            separate(i);
            out_ << R"({"handle":")";
            out_.handle(firstHandle + i) << R"(","class":"AcDbLine"})";
        }
        out_ << "]}}";
        closeCommand();
    }

private:
    void lineCommand(std::uint64_t lines)
    {
        openCommand("LINE");
        for (std::uint64_t i = 0; i < lines; ++i) {
            separate(i);
            added(kinds[0]);
        }
        closeCommand();
    }

    std::uint64_t simpleObjects(std::uint64_t most)
    {
        const std::uint64_t children = std::min<std::uint64_t>(most, 1 + dice_.below(40));
        const Kind& kind = anyKind();
        command(kind, children);
        if (dice_.chance(15))
            changes(kind, children);
        if (dice_.chance(4))
            blockDefinition(children);
        return children;
    }

    std::uint64_t otherObjects(std::uint64_t most)
    {
        const std::uint64_t children = std::min<std::uint64_t>(most, 1 + dice_.below(6));
        const std::uint64_t roll = dice_.below(100);
        const bool polylines = roll < 30;
        const bool dimensions = !polylines && roll < 60;
        const bool hatches = !polylines && !dimensions && roll < 75;
        openCommand(polylines ? "PLINE" : dimensions ? "DIMLINEAR" : hatches ? "HATCH" : "-INSERT");
        for (std::uint64_t i = 0; i < (hatches ? 1 : children); ++i) {
            separate(i);
            if (polylines)
                polyline(4 + dice_.below(197), Form::Length);
            else if (dimensions)
                dimension();
            else if (hatches)
                hatch();
            else
                blockReference();
        }
        closeCommand();
        return hatches ? 1 : children;
    }

    void openCommand(std::string_view name) { out_ << R"({"command":{"name":")" << name << R"(","actions":[)"; }
    void closeCommand()
    {
        out_ << "]}}";
        out_.end();
    }
    void separate(std::uint64_t index)
    {
        if (index > 0)
            out_ << ",";
    }

    void boundaryLines(std::uint64_t first, std::uint64_t count)
    {
        for (std::uint64_t i = 0; i < count; ++i) {
            out_ << R"({"object":{"class":"AcDbLine","handle":")";
            out_.handle(first + i) << R"(","startPoint":)";
            coordinates(Form::Length);
            out_ << R"(,"endPoint":)";
            coordinates(Form::Length);
            out_ << "}}";
            out_.end();
        }
    }

    void polyline(std::uint64_t vertices, Form form)
    {
        beginAdded("AcDbPolyline");
        out_ << R"({"tag":"Vertex","value":{"collection":{"elements":[)";
        for (std::uint64_t i = 0; i < vertices; ++i) {
            separate(i);
            out_ << R"({"tag":{"int":)" << i << R"(},"value":{"point":)";
            coordinates(form);
            out_ << "}}";
        }
        out_ << "]}}" << geometry_ << R"(,{"tag":"Closed","value":")" << (dice_.chance(30) ? "Yes" : "No") << "\""
             << geometry_ << ",";
        endEntity();
    }

    void dimension()
    {
        const bool turned = dice_.chance(50);
        beginAdded(turned ? "AcDbRotatedDimension" : "AcDbAlignedDimension");
        for (const std::string_view tag : {"xLine1Point", "xLine2Point", "dimLinePoint"}) {
            out_ << R"({"tag":")" << tag << R"(","value":{"point":)";
            coordinates(Form::Length);
            out_ << "}" << geometry_ << ",";
        }
        if (turned) {
            out_ << R"({"tag":"rotation","value":)";
            number(Form::Angle);
            out_ << geometry_ << ",";
        }
        out_ << R"({"tag":"Text override","value":"<>")" << general_ << ",";
        endEntity();
    }

    /// Those by internal points and those by entities that erase them.
    void hatch()
    {
        const bool byEntities = dice_.chance(50);
        hatchHead(byEntities);
        if (byEntities) {
            out_ << R"({"ids":[)";
            const std::uint64_t first = dice_.below(boundaries);
            for (std::uint64_t i = 0; i < std::min<std::uint64_t>(1 + dice_.below(8), boundaries - first); ++i) {
                separate(i);
                out_ << R"(")";
                out_.handle(firstBoundary + first + i) << R"(")";
            }
        } else {
            out_ << R"({"points2d":[)";
            for (std::uint64_t i = 0, count = 1 + dice_.below(5); i < count; ++i) {
                separate(i);
                out_ << "[";
                number(Form::Length);
                out_ << ",";
                number(Form::Length);
                out_ << "]";
            }
        }
        out_ << "]},";
        hatchEnd();
    }
    void hatchHead(bool byEntities)
    {
        out_ << R"({"custom":{"kind":18,"data":[{"string":"ANSI31"},{"double":)";
        number(Form::Radius);
        out_ << R"(},{"double":)";
        number(Form::Angle);
        out_ << (byEntities ? R"(},{"bool":false},{"bool":true},)" : R"(},{"bool":true},{"bool":false},)")
             << R"({"bool":false},{"bool":false},)";
    }
    void hatchEnd()
    {
        out_ << R"({"bool":true}]}},)";
        beginAdded("AcDbHatch");
        endEntity();
    }

    void blockReference()
    {
        beginAdded("AcDbBlockReference");
        out_ << R"({"tag":"Name","value":")" << firstBlock;
        if (blocks_ > 0 && dice_.chance(80))
            out_ << " " << dice_.below(blocks_) + 1;
        out_ << R"(")" << general_ << ",";
        for (const Tag& tag : insertionTags) {
            out_ << R"({"tag":")" << tag.name << R"(","value":)";
            number(tag.form);
            out_ << geometry_ << ",";
        }
        endEntity();
    }

    /// The last objects become a block.
    void blockDefinition(std::uint64_t last)
    {
        openCommand("-BLOCK");
        const std::uint64_t first = nextHandle_ - last;
        beginAdded("AcDbBlockTableRecord");
        out_ << R"({"tag":"Name","value":")" << firstBlock << " " << ++blocks_ << R"(")" << general_
             << R"(,{"tag":"Objects","value":{"collection":{"elements":[)";
        for (std::uint64_t i = 0; i < last; ++i) {
            separate(i);
            out_ << R"({"tag":{"int":)" << i << R"(},"value":")";
            out_.handle(first + i) << R"("})";
        }
        out_ << "]}}" << general_ << "]}}";
        closeCommand();
    }

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
        boundaryLines(firstBoundary, boundaries);
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
        openCommand(kind.command);
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
        closeCommand();
    }

    /// Some of the last command's objects are restyled or moved.
    void changes(const Kind& kind, std::uint64_t last)
    {
        openCommand("PROPERTIES");
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
        closeCommand();
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
        out_ << R"({"interaction":{"kind":"point","prompt":")" << prompt << R"(","result":{"point3d":)";
        coordinates(Form::Length);
        out_ << "}}}";
    }

    void sysVar()
    {
        out_ << R"({"sysvar":{"name":"TEXTSIZE","value":{"double":)";
        number(Form::Radius);
        out_ << "}}}";
    }

    void added(const Kind& kind)
    {
        beginAdded(kind.cls);
        for (const Tag& tag : kind.tags) {
            out_ << R"({"tag":")" << tag.name << R"(","value":)";
            number(tag.form);
            out_ << geometry_ << ",";
        }
        endEntity();
    }

    void beginAdded(std::string_view cls)
    {
        out_ << R"({"added":{"class":")" << cls << R"(","handle":")";
        out_.handle(nextHandle_++) << R"(","properties":[)";
    }

    /// The properties that all entities have.
    void endEntity()
    {
        out_ << R"({"tag":"LineColor","value":{"color":)";
        color();
        out_ << "}" << general_;
        out_ << R"(,{"tag":"Layer","value":{"id":")";
        out_.handle(firstLayer + dice_.below(layers)) << R"("})" << general_;
        out_ << R"(,{"tag":"LineStyle","value":{"id":"1A"})" << general_;
        out_ << R"(,{"tag":"LineScale","value":1)" << general_;
        out_ << R"(,{"tag":"LineWeight","value":{"int":-1})" << general_;
        out_ << R"(,{"tag":"Thickness","value":0)" << general_ << "]}}";
    }

    /// A point in the plane.
    void coordinates(Form form)
    {
        out_ << "[";
        number(form);
        out_ << ",";
        number(form);
        out_ << ",0]";
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
        case Form::Exact:
            out_.decimal(dice_.below(10'000'000'000'000'000), 13);
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
    const std::string_view geometry_; ///< ends a property record, and names its group if groups are wanted
    const std::string_view general_;
    Dice dice_;
    std::uint64_t nextHandle_ = firstHandle;
    std::uint64_t blocks_ = 0; ///< made so far
};

struct Mode
{
    std::string_view name;
    bool groups;
    void (Maker::*make)(std::uint64_t count);
};

constexpr Mode modes[] = {
    {"lines", false, &Maker::lines},
    {"drawing", true, &Maker::drawing},
    {"polyline", false, &Maker::longPolyline},
    {"block", false, &Maker::largeBlock},
    {"hatch", false, &Maker::largeHatch},
    {"command", false, &Maker::longCommand},
    {"properties", false, &Maker::changedTable},
    {"selection", false, &Maker::longSelection},
};

} // namespace

int main(int argc, char** argv)
{
    std::uint64_t count = 0;
    const char* const digits = argc == 4 ? argv[1] : "";
    const std::string_view name = argc == 4 ? argv[3] : "";
    const char* const end = digits + std::strlen(digits);
    const std::from_chars_result parsed = std::from_chars(digits, end, count);
    const auto mode = std::ranges::find(modes, name, &Mode::name);
    if (parsed.ec != std::errc() || parsed.ptr != end || mode == std::end(modes)) {
        std::fputs("usage: make_recording COUNT FILE lines|drawing|polyline|block|hatch|command|properties|selection\n",
                   stderr);
        return 2;
    }

    Lines out(argv[2]);
    Maker maker(out, mode->groups);
    (maker.*mode->make)(count);
    if (!out.finish()) {
        std::fprintf(stderr, "make_recording: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
