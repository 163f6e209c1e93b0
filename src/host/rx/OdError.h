#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

#include <exception>

class OdRxClass;

enum OdResult : int
{
    eOk = 0,
    eNullObjectPointer = 20,
    eInvalidIndex = 21,
    eNotThatKindOfClass = 22,
    eTextTooLong = 23,
    eBadDxfSequence = 24,
    eDuplicateRecordName = 25,
    eHandlesUsedUp = 26,
    eUndefinedLineType = 156,
};

/// What the drawing SDK throws. Never crosses the border of a conversion: the driver turns it into a status.
class INKHOST_EXPORT OdError : public std::exception
{
public:
    explicit OdError(OdResult code);
    OdError(OdResult code, const OdString& description);

    OdResult code() const { return code_; }
    const char* what() const noexcept override { return what_.constData(); }

private:
    OdResult code_;
    QByteArray what_;
};

class INKHOST_EXPORT OdError_InvalidIndex : public OdError
{
public:
    OdError_InvalidIndex();
};

class INKHOST_EXPORT OdError_NotThatKindOfClass : public OdError
{
public:
    OdError_NotThatKindOfClass(const OdRxClass* found, const OdRxClass* wanted);
};
