#include "recordfile/compactLines.h"

#include "recordfile/jsonFaults.h"

#include <simdjson.h>

#include <algorithm>

namespace inkmacro {

namespace {

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
}

/// Cuts a text into values by their brackets alone; whether they are JSON is asked of each one.
class Values
{
public:
    explicit Values(const QByteArray& json) : json_(json) {}

    CompactLines take()
    {
        skipBlanks();
        // A list of objects is what many programs write; no line of a recording is a list.
        const bool isList = at_ < json_.size() && json_[at_] == '[';
        at_ += isList ? 1 : 0;
        for (skipBlanks(); at_ < json_.size() && !(isList && json_[at_] == ']'); skipBlanks()) {
            takeValue(isList);
            if (made_.wrongLine)
                return made_;
            skipBlanks();
            if (isList && at_ < json_.size() && json_[at_] == ',')
                ++at_;
        }
        return made_;
    }

private:
    void skipBlanks()
    {
        for (; at_ < json_.size() && isBlank(json_[at_]); ++at_)
            line_ += json_[at_] == '\n' ? 1 : 0;
    }

    /// Up to the end of its brackets, or of the line where there are none.
    void takeValue(bool inList)
    {
        const qint64 begin = line_;
        QByteArray value;
        int depth = 0;
        do {
            const char letter = json_[at_];
            if (letter == '"') {
                takeText(value);
                continue;
            }
            if (depth == 0 && !value.isEmpty() && (isBlank(letter) || (inList && (letter == ',' || letter == ']'))))
                break;
            depth += letter == '{' || letter == '[' ? 1 : letter == '}' || letter == ']' ? -1 : 0;
            line_ += letter == '\n' ? 1 : 0;
            if (!isBlank(letter))
                value += letter;
            ++at_;
        } while (at_ < json_.size() && (depth > 0 || !(value.endsWith('}') || value.endsWith(']'))));
        simdjson::dom::parser parser;
        if (const auto code = parser.parse(value.constData(), static_cast<std::size_t>(value.size())).error()) {
            made_.wrongLine = begin;
            made_.reason = recordfile::explainFault(code, {value.constData(), static_cast<std::size_t>(value.size())});
            // Columns are those of the value without its blanks.
            made_.reason.truncate(made_.reason.lastIndexOf(" (column"));
            return;
        }
        made_.lines += value + '\n';
    }

    /// With its quotes, at the first of which it begins.
    void takeText(QByteArray& value)
    {
        const int begin = at_;
        for (++at_; at_ < json_.size() && json_[at_] != '"'; ++at_) {
            line_ += json_[at_] == '\n' ? 1 : 0;
            at_ += json_[at_] == '\\' ? 1 : 0;
        }
        at_ = std::min(at_ + 1, json_.size());
        value += json_.mid(begin, at_ - begin);
    }

    const QByteArray& json_;
    int at_ = 0;
    qint64 line_ = 1;
    CompactLines made_;
};

} // namespace

CompactLines compactLines(const QByteArray& json)
{
    return Values(json).take();
}

} // namespace inkmacro
