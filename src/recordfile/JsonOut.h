#pragma once

#include "host/kernel/CFxActions.h"

#include <QByteArray>

#include <string_view>

namespace inkmacro::recordfile {

/// What is done with a key that may be absent and has the value that it has then.
enum class NeutralKeys
{
    LeaveOut,
    Write,
};

/// Makes the lines of a recording file. Commas come by themselves.
class JsonOut
{
public:
    /// `context` is for the getters of property records.
    explicit JsonOut(CFxValueContext context, NeutralKeys neutralKeys = NeutralKeys::LeaveOut)
        : context(context), neutralKeys(neutralKeys)
    {
    }

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    void key(std::string_view name);
    void key(const QString& name);
    void text(const QString& text);
    void text(std::string_view ascii);
    /// Gives the same double when read, -0.0 included. One that is not finite is refused.
    void number(double value);
    void integer(qint64 value);
    void boolean(bool value);
    void null();
    void endLine();
    /// The next item begins a line, behind the comma.
    void onNewLine() { onNewLine_ = true; }

    /// Notes that something cannot be written.
    void refuse() { refused_ = true; }
    bool refused() const { return refused_; }

    const QByteArray& bytes() const { return bytes_; }
    void clear() { bytes_.resize(0); }

    const CFxValueContext context;
    const NeutralKeys neutralKeys;
    int commandDepth = 0;

private:
    void separate();
    void begin(char bracket);
    void end(char bracket);
    void append(std::string_view ascii);
    void quote(const QString& text);

    QByteArray bytes_;
    bool comma_ = false; ///< the next item has one before it
    bool onNewLine_ = false;
    bool refused_ = false;
};

} // namespace inkmacro::recordfile
