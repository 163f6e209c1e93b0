#pragma once

#include "host/kernel/CFxServices.h"

#include <QBuffer>
#include <QTextStream>

/// What a macro file writes stays in memory. Nothing has been noted before.
struct TestStream
{
    TestStream() : stream(&buffer)
    {
        GetFxSystemServices()->Notes().Forget();
        buffer.open(QIODevice::WriteOnly);
        stream.setCodec("UTF-8");
    }

    QBuffer buffer;
    QTextStream stream;
};
