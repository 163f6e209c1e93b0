#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/StatementGroup.h"

#include <vector>

// Arrays in the targets. A statement's literal declares its arrays itself, since no two declarations are alike;
// what fills them stands here. Lists for a call ("coordinateArray", "integerArray") know the target's form of one:
// lines that fill an array, an array made in front of the call, or a list within it. The lines themselves ("...Lines")
// are for literals that say more about their arrays.

/// The coordinates of points one after the other.
struct Coordinates
{
    int axes = 3; ///< how many a point has, 2 or 3
    std::vector<double> values;
};

Coordinates spatial(const OdArray<OdGePoint3d>& points);
Coordinates planar(const OdArray<OdGePoint2d>& points);
/// Leaves the heights out.
Coordinates planar(const OdArray<OdGePoint3d>& points);

enum class NumberForm
{
    Long,
    Short
};

/// Around what stands within the brackets of an array: `a(0)` or `a( 0 )`.
enum class Brackets
{
    Tight,
    Spaced
};

/// Where the lines that fill an array stand, and how it is called there.
struct ArrayPlace
{
    ArrayPlace(Writer& writer, const QString& name, std::uint32_t number, Brackets brackets = Brackets::Spaced);

    Writer& writer;
    QString name;         ///< in this target, its number included
    std::uint32_t number; ///< of the locals that COM needs: two fillings with one number cannot stand in a block
    Brackets brackets;    ///< of Basic
    QString indentation;  ///< of the writer's level
    QString lineEnd;
};

/// The name with its number behind it.
QString numberedName(const inkmacro::Words& names, inkmacro::Target target, std::uint32_t number);

namespace inkmacro {
/// The fault of a statement that names an object which has no variable.
extern const Fault emptyPlace;
} // namespace inkmacro

// All elements of an array, in C++ COM with the locals that it takes to put them in. In Python, where an array is an
// expression, a list of them with commas between.

/// `words` are variables or calls.
Statement objectLines(const ArrayPlace& place, std::vector<QString> words);
/// `words` as objectTypeWord makes them, or variables.
Statement objectTypeLines(const ArrayPlace& place, const std::vector<QString>& words);
Statement integerLines(const ArrayPlace& place, const std::vector<int>& values);
/// All coordinates of a point are written together. Empty in C#, JavaScript and Python, which take lists.
Statement pointLines(const ArrayPlace& place, Coordinates coordinates, NumberForm numbers);

/// The coordinates with commas between them; in Python more than a few points are told apart, as `*(1.0, 2.0)`.
Statement coordinateList(Writer& writer, Coordinates coordinates, NumberForm numbers);

// Single elements, for arrays that are filled between other lines. Empty in C++ COM, where locals come in front of them
// all, and in Python.

Statement objectLine(const ArrayPlace& place, std::size_t index, const QString& word);
/// Of an array of objects without wrappers, which is none of .NET's.
Statement bareObjectLine(const ArrayPlace& place, std::size_t index, const QString& word);
Statement objectTypeLine(const ArrayPlace& place, std::size_t index, const QString& word);
/// Of an array whose elements are object types and not their numbers.
Statement bareObjectTypeLine(const ArrayPlace& place, std::size_t index, const QString& word);
/// Empty in VB.NET too: there and in C++ COM arrays of numbers are filled by points.
Statement realLine(const ArrayPlace& place, std::size_t index, double value, NumberForm numbers);

/// Fills the array of the one point that an operation takes, in C++ COM. The lines work with the locals `x`, `y` and
/// `z`.
Statement comPointLines(const ArrayPlace& place, const OdGePoint3d& point, NumberForm numbers, bool declareLocals);

/// The locals of one filling keep those of another out, so all but one of a statement need a group of their own.
template<class Filling>
Statement inOwnGroup(ArrayPlace place, const Filling& filling)
{
    StatementGroup group(place.writer);
    place.indentation = place.writer.indentation();
    const Statement lines = filling(place);
    return group.begin() + lines + group.close();
}

/// A list as an argument of a call, in the form of the target: JavaScript has an array made in front of the call, C#
/// and Python a list within it, the others an array that lines at the head of the call's literal fill.
struct ArrayArgument
{
    inkmacro::Target target;
    std::uint32_t number = 0; ///< keeps the array apart from others; none in C# and Python
    int count = 0;            ///< of elements: a point has two or three
    Statement before{};       ///< statements in front of the call
    Statement words{};        ///< the list, the name of the array or the lines that fill it

    /// As a declaration in Basic has it.
    int highestIndex() const { return count - 1; }
    /// The values that the literal of a call has at its head.
    inkmacro::Fill& open(inkmacro::Fill& call) const;
    /// The value behind the call's own values, before the variable.
    inkmacro::Fill& close(inkmacro::Fill& call) const;
};

/// The array "Coordinates", in C++ COM "variant"; `script` is what JavaScript calls it, and `scriptBrackets` stand
/// around its elements there. Takes a new number wherever the target has one.
ArrayArgument coordinateArray(Writer& writer, Coordinates coordinates, const char* script,
                              NumberForm numbers = NumberForm::Long, Brackets scriptBrackets = Brackets::Tight);
/// Integers that a call takes besides the coordinates, with a number that is taken already.
ArrayArgument integerArray(Writer& writer, const std::vector<int>& values, std::uint32_t number, const char* name,
                           const char* script, Brackets scriptBrackets = Brackets::Tight);

/// A call whose literal opens and closes in the usual way around the values that `values` puts in.
template<class Values>
Statement callWithArray(Writer& writer, const inkmacro::Phrase& phrase, const ArrayArgument& array,
                        const Values& values, const QString& variable)
{
    inkmacro::Fill call = writer.fill(phrase);
    array.open(call);
    values(call);
    return array.before + array.close(call).word(variable).str();
}

/// Literals of entity lists end their lines themselves in C++, C# and JavaScript, not in the other targets.
inkmacro::Fill fillList(Writer& writer, const inkmacro::Phrase& phrase);
/// What the declaration of an array of so many elements names: the count, in Basic the highest index.
int arrayBound(Writer& writer, std::size_t count);
/// Declarations of arrays of so many elements, with the writer's present number.
Statement listHead(Writer& writer, const inkmacro::Phrase& phrase, std::size_t count);
