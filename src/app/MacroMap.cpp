// The file beside a macro that leads its lines back to the recording.

#include "app/MacroMap.h"

#include "app/ActionFilter.h"
#include "app/notePlaces.h"
#include "app/reportSchema.h"
#include "recordfile/JsonOut.h"
#include "recordfile/Recording.h"
#include "recordfile/SchemaDefinitions.h"

#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace inkmacro {

using namespace recordfile;
using namespace std::string_view_literals;

namespace {

template<class Action>
bool isA(const OdRxObject* action)
{
    return !odrxQuery<Action>(action).isNull();
}

struct Kind
{
    std::string_view name;
    std::string_view meaning;
    bool (*has)(const OdRxObject*) = nullptr; ///< such an action
};

/// What statements are called, by their actions.
constexpr std::array kinds{
    Kind{"insertion", "inserts an object and sets its properties", isA<CFxObjectAdded>},
    Kind{"change", "changes or erases an object", isA<CFxObjectModified>},
    Kind{"property", "changes one property that the application had at hand", isA<CFxPropertyChanged>},
    Kind{"variable", "sets a system variable", isA<CFxSysVarChanged>},
    Kind{"prompt", "asks again what a command asked", isA<CFxUserInteraction>},
    Kind{"selection", "selects objects again", isA<CFxUserSelection>},
    Kind{"custom", "repeats a custom action", isA<CFxCustomAction>},
};
constexpr Kind declaration{"declaration", "declares the variable of an object that is added"};
constexpr Kind block{"block", "begins or ends the group of a command's statements"};
constexpr Kind frame{"frame", "holds the macro together, such as its head, its foot and calls of its procedures"};

const Kind& kindOf(CFxMacroPart part, const OdRxObject* action)
{
    if (part == CFxMacroPart::kDeclaration)
        return declaration;
    if (part == CFxMacroPart::kBlock)
        return block;
    return *std::ranges::find_if(kinds, [action](const Kind& kind) { return kind.has(action); });
}

// A long macro has millions of ranges, so what they hold is put together here: nothing in it needs an escape.

void append(QByteArray& bytes, std::string_view text)
{
    bytes.append(text.data(), static_cast<int>(text.size()));
}

void append(QByteArray& bytes, std::uint64_t number, int base = 10)
{
    std::array<char, 20> digits;
    char* const end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
    std::transform(digits.begin(), end, digits.begin(),
                   [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit; });
    bytes.append(digits.data(), static_cast<int>(end - digits.data()));
}

} // namespace

MacroMap::MacroMap(const QString& path, const Job& job, const Recording& recording) : file_(path), recording_(recording)
{
    // finish() tells when it is not.
    (void)file_.open(QIODevice::WriteOnly);
    JsonOut head(recording.header.context);
    head.beginObject();
    head.key("mapVersion"sv);
    head.integer(kMapVersion);
    head.key(std::string_view(kProgramVersionKey));
    head.text(INKMACRO_VERSION ""sv);
    head.key("input"sv);
    head.text(job.input);
    head.key("target"sv);
    head.text(targetName(*job.target));
    head.key("macro"sv);
    head.text(QFileInfo(job.macro).fileName());
    head.key("ranges"sv);
    head.beginArray();
    bytes_ = head.bytes();
}

void MacroMap::add(const CFxMacroLines& lines)
{
    constexpr int piece = 64 * 1024;
    append(bytes_, std::exchange(first_, false) ? "\n{\"lines\":["sv : ",\n{\"lines\":["sv);
    append(bytes_, lines.first);
    append(bytes_, ","sv);
    append(bytes_, lines.last);
    const Kind* kind = &frame;
    if (lines.part != CFxMacroPart::kFrame) {
        const OdRxObjectPtr action = actionAt(lines.where, recording_);
        kind = &kindOf(lines.part, action.get());
        addAction(lines, action);
    } else {
        append(bytes_, "],\"kind\":\""sv);
    }
    append(bytes_, kind->name);
    append(bytes_, "\"}"sv);
    if (bytes_.size() > piece)
        write();
}

/// All between the range's lines and the word of its kind.
void MacroMap::addAction(const CFxMacroLines& lines, const OdRxObjectPtr& action)
{
    append(bytes_, "],\"line\":"sv);
    append(bytes_, static_cast<std::uint64_t>(lineOf(lines.where, recording_)));
    append(bytes_, ",\"path\":\""sv);
    if (lines.where.size() > 1)
        bytes_.append(pathOf(lines.where).toLatin1());
    append(bytes_, "\",\"handles\":["sv);
    std::vector<OdDbHandle> handles = handlesOf(action);
    if (!lines.made.isNull())
        handles.push_back(lines.made);
    std::ranges::sort(handles);
    handles.erase(std::unique(handles.begin(), handles.end()), handles.end());
    for (std::size_t i = 0; i < handles.size(); ++i) {
        append(bytes_, i == 0 ? "\""sv : ",\""sv);
        append(bytes_, handles[i].value(), 16);
        append(bytes_, "\""sv);
    }
    append(bytes_, "],\"kind\":\""sv);
}

void MacroMap::write()
{
    if (file_.isOpen())
        file_.write(bytes_);
    bytes_.resize(0);
}

QString MacroMap::finish()
{
    append(bytes_, "\n]}\n"sv);
    write();
    if (!file_.isOpen() || !file_.flush() || file_.error() != QFileDevice::NoError)
        return file_.errorString();
    file_.close();
    return file_.error() == QFileDevice::NoError ? QString() : file_.errorString();
}

namespace {

QString latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

/// Each kind is told where its word stands.
QJsonObject wordSchema(const Kind& kind)
{
    return {{"const", latin(kind.name)}, {"description", latin(kind.meaning)}};
}

QJsonObject countedSchema()
{
    QJsonObject schema = typeSchema("integer");
    schema.insert("minimum", 1);
    return schema;
}

void addLines(ObjectSchema& range)
{
    range.add("lines", "the first and the last one of lines of the macro, from 1", listSchema(countedSchema(), 2, 2),
              true);
}

QJsonObject frameSchema()
{
    ObjectSchema range;
    addLines(range);
    range.add("kind", latin(frame.meaning), wordSchema(frame), true);
    return range.json();
}

QJsonObject actionSchema()
{
    QJsonArray words{wordSchema(declaration), wordSchema(block)};
    for (const Kind& kind : kinds)
        words.append(wordSchema(kind));
    QJsonObject handle = typeSchema("string");
    handle.insert("pattern", "^[1-9A-F][0-9A-F]*$");
    QJsonObject path = typeSchema("string");
    path.insert("pattern", "^(command\\.actions\\[[0-9]+\\])?$");
    ObjectSchema range;
    addLines(range);
    range.add("line", "the line of the recording that they come from, from 1", countedSchema(), true);
    range.add("path", "the place of the action within it, such as command.actions[2]; empty for the whole line", path,
              true);
    range.add("handles", "the objects that the action is about or makes, each once", listSchema(handle), true);
    range.add("kind", "what they do", anyOfSchema(words), true);
    return range.json();
}

} // namespace

QByteArray mapSchema()
{
    ObjectSchema document;
    QJsonObject version = typeSchema("integer");
    version.insert("const", kMapVersion);
    document.add("mapVersion", "of the form of this map", version, true);
    document.add(kProgramVersionKey, "of the program that wrote it", typeSchema("string"), true);
    document.add("input", "the recording; - is standard input", typeSchema("string"), true);
    document.add("target", "the language of the macro", typeSchema("string"), true);
    document.add("macro", "the name of the macro file, beside which the map stands", typeSchema("string"), true);
    document.add("ranges", "lines of the macro, in order and none left out",
                 listSchema(anyOfSchema({frameSchema(), actionSchema()})), true);
    QJsonObject schema = document.json();
    schema.insert("$schema", "https://json-schema.org/draft/2020-12/schema");
    schema.insert("title", "Which action of a recording each line of a macro comes from");
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
