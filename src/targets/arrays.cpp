// Arrays of objects and of object types.

#include "targets/arrays.h"

#include "targets/blocks.h"
#include "targets/comArrays.h"

using namespace inkmacro;

Fill fillList(Writer& writer, const Phrase& phrase)
{
    return isBasic(writer.target) || writer.target == Target::CppCom ? writer.fill(phrase)
                                                                     : writer.fillIndented(phrase);
}

int arrayBound(Writer& writer, std::size_t count)
{
    return static_cast<int>(count) - (isBasic(writer.target) ? 1 : 0);
}

QString listHead(Writer& writer, const Phrase& phrase, std::size_t count)
{
    return fillList(writer, phrase).number(writer.UniqueCounter).number(arrayBound(writer, count));
}

QString listElement(Writer& writer, const Phrase& phrase, std::size_t index, const QString& word)
{
    Fill line = fillList(writer, phrase);
    line.number(writer.UniqueCounter);
    // An array of the C++ add-in grows by adding.
    if (writer.target != Target::Cpp)
        line.number(qulonglong{index});
    return line.text(word);
}

QString objectElements(Writer& writer, const Phrase& phrase, const char* array, const std::vector<CFxString>& names)
{
    if (writer.target == Target::CppCom)
        return comObjects(writer.IndentLevel, array, writer.UniqueCounter,
                          std::vector<QString>(names.begin(), names.end()));
    QString text;
    for (std::size_t i = 0; i < names.size(); ++i)
        text += listElement(writer, phrase, i, names[i]);
    return text;
}

QString ownBlock(Writer& writer, const std::function<QString()>& filling)
{
    const QString begin = EmitBlockBegin(writer);
    const QString text = filling();
    return begin + text + EmitBlockEnd(writer);
}
