// Arrays in the targets.

#include "statements/arrays.h"

#include "statements/LineEnd.h"
#include "statements/pythonLiterals.h"
#include "statements/wording.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace inkmacro;

Coordinates spatial(const OdArray<OdGePoint3d>& points)
{
    Coordinates coordinates{3, {}};
    coordinates.values.reserve(std::size_t{3} * points.length());
    for (const OdGePoint3d& point : points)
        coordinates.values.insert(coordinates.values.end(), {point.x, point.y, point.z});
    return coordinates;
}

template<class Point>
static Coordinates withoutHeights(const OdArray<Point>& points)
{
    Coordinates coordinates{2, {}};
    coordinates.values.reserve(std::size_t{2} * points.length());
    for (const Point& point : points)
        coordinates.values.insert(coordinates.values.end(), {point.x, point.y});
    return coordinates;
}

Coordinates planar(const OdArray<OdGePoint2d>& points)
{
    return withoutHeights(points);
}

Coordinates planar(const OdArray<OdGePoint3d>& points)
{
    return withoutHeights(points);
}

ArrayPlace::ArrayPlace(Writer& writer, const QString& name, std::uint32_t number, Brackets brackets)
    : writer(writer),
      name(name),
      number(number),
      brackets(brackets),
      indentation(writer.indentation()),
      lineEnd(LineEnd)
{
}

QString numberedName(const Words& names, Target target, std::uint32_t number)
{
    return names.in(target) + QString::number(number);
}

// Of all lines of elements the values are indentation, line end, name, index in its brackets (but none in C++, whose
// arrays grow by adding), and the element; in COM indentation, line end, name, number of the locals, and the element.

static const Phrase objectElement{"array of objects",
                                  {
                                      .cpp = "%1%3.add(%4);%2",
                                      .cppCom = "%1val%4 = %5;%2"
                                                "%1SafeArrayPutElement( %3.parray, &rgIndices%4, (IDispatch*)(val%4) );"
                                                "%2%1rgIndices%4++;%2",
                                      .csharp = "%1%3[%4] = new DispatchWrapper(%5);%2",
                                      .javascript = "%1%3[%4] = %5;%2",
                                      .vbNet = "%1%3(%4) = New DispatchWrapper(%5)%2",
                                      .vba = "%1Set %3(%4) = %5%2",
                                  }};

static const Phrase bareObjectElement{"array of bare objects",
                                      {
                                          .cpp = "%1%3.add(%4);%2",
                                          .vbNet = "%1%3(%4) = %5%2",
                                          .vba = "%1Set %3(%4) = %5%2",
                                      }};

static const Phrase objectTypeElement{"array of object types",
                                      {
                                          .cpp = "%1%3.add(%4);%2",
                                          .csharp = "%1%3[%4] = (int)%5;%2",
                                          .javascript = "%1%3[%4] = %5;%2",
                                          .vbNet = "%1%3(%4) = CInt( %5 )%2",
                                          .vba = "%1%3(%4) = %5%2",
                                      }};

static const Phrase bareObjectTypeElement{"array of bare object types",
                                          {
                                              .cpp = "%1%3.add(%4);%2",
                                              .vbNet = "%1%3(%4) = %5%2",
                                              .vba = "%1%3(%4) = %5%2",
                                          }};

static const Phrase integerElement{"array of integers",
                                   {
                                       .cpp = "%1%3.add(%4);%2",
                                       .cppCom = "%1val%4 = %5;%2"
                                                 "%1SafeArrayPutElement( %3.parray, &rgIndices%4, (int*)&(val%4) );%2"
                                                 "%1rgIndices%4++;%2",
                                       .vbNet = "%1%3(%4) = %5%2",
                                       .vba = "%1%3(%4) = %5%2",
                                   }};

static const Phrase realElement{"array of numbers",
                                {
                                    .cpp = "%1%3.add(%4);%2",
                                    .csharp = "%1%3[%4] = %5;%2",
                                    .javascript = "%1%3[%4] = %5;%2",
                                    .vba = "%1%3(%4) = %5%2",
                                }};

/// The values of a place, and the index.
static void putPlace(Fill& line, const ArrayPlace& place, const QString& index)
{
    line.word(place.indentation).word(place.lineEnd).word(place.name);
    if (place.writer.target == Target::CppCom)
        line.number(place.number);
    else if (place.writer.target != Target::Cpp)
        line.word(index);
}

/// What stands within the brackets of Basic, with the blanks of the place.
static QString bracketed(const ArrayPlace& place, const QString& text)
{
    return isBasic(place.writer.target) && place.brackets == Brackets::Spaced ? ' ' + text + ' ' : text;
}

static Statement elementLine(const Phrase& phrase, const ArrayPlace& place, std::size_t index, const QString& word)
{
    const QString indexText = bracketed(place, QString::number(index));
    Fill line = place.writer.fillPlain(phrase);
    putPlace(line, place, indexText);
    return line.word(word);
}

static QString commaList(const std::vector<QString>& words)
{
    return QStringList(words.begin(), words.end()).join(QLatin1String(", "));
}

static Statement elementLines(const Phrase& phrase, const char* comType, const ArrayPlace& place,
                              const std::vector<QString>& words)
{
    if (place.writer.target == Target::Python)
        return commaList(words);
    Statement lines;
    if (place.writer.target == Target::CppCom) {
        static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = 0;%2%1%4 val%3;%2");
        lines =
            Fill(&head).word(place.indentation).word(place.lineEnd).number(place.number).word(QLatin1String(comType));
    }
    for (std::size_t i = 0; i < words.size(); ++i)
        lines += elementLine(phrase, place, i, words[i]);
    return lines;
}

/// An object as an element has it: .NET's wrapper has brackets too.
static QString objectWord(const ArrayPlace& place, const QString& word)
{
    return place.writer.target == Target::VbNet ? bracketed(place, word) : word;
}

const Fault inkmacro::emptyPlace{
    "EmitObjectVariable",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "an object without a variable leaves its place empty"};
static const Fault kReleasedElement{
    "array of objects", {Target::CppCom}, "a pointer is taken out of a temporary, which lets go of the object"};

Statement objectLines(const ArrayPlace& place, std::vector<QString> words)
{
    const Writer& writer = place.writer;
    const bool hasEmpty = std::find(words.begin(), words.end(), QString()) != words.end();
    const bool found = std::any_of(words.begin(), words.end(), [](const QString& word) { return word.endsWith(')'); });
    const bool released = writer.target == Target::CppCom && found;
    for (QString& word : words)
        word = objectWord(place, word);
    const auto lines = [&](const char* type) {
        const Statement text = elementLines(objectElement, type, place, words);
        return hasEmpty ? writer.faulty(text, emptyPlace) : text;
    };
    return released ? writer.mended(lines("IDispatch*"), kReleasedElement, lines("IDispatchPtr")) : lines("IDispatch*");
}

Statement objectTypeLines(const ArrayPlace& place, const std::vector<QString>& words)
{
    const bool com = place.writer.target == Target::CppCom;
    return elementLines(com ? integerElement : objectTypeElement, "int", place, words);
}

Statement integerLines(const ArrayPlace& place, const std::vector<int>& values)
{
    std::vector<QString> words;
    words.reserve(values.size());
    for (const int value : values)
        words.push_back(QString::number(value));
    return elementLines(integerElement, "int", place, words);
}

static bool areRounded(const std::vector<double>& values, NumberForm numbers)
{
    return numbers == NumberForm::Short && std::any_of(values.begin(), values.end(), losesDigits);
}

/// A repaired macro rounds none.
static NumberForm formIn(const Writer& writer, NumberForm numbers, bool rounded)
{
    return rounded && writer.repairs ? NumberForm::Long : numbers;
}

static QString formatted(double value, NumberForm numbers)
{
    return numbers == NumberForm::Long ? FormatLong(value) : FormatShort(value);
}

/// Nothing in COM: there the locals come first.
static Statement singleLine(const Phrase& phrase, const ArrayPlace& place, std::size_t index, const QString& word)
{
    return place.writer.target == Target::CppCom ? Statement() : elementLine(phrase, place, index, word);
}

Statement objectLine(const ArrayPlace& place, std::size_t index, const QString& word)
{
    const Statement line = singleLine(objectElement, place, index, objectWord(place, word));
    return word.isEmpty() ? place.writer.faulty(line, emptyPlace) : line;
}

Statement bareObjectLine(const ArrayPlace& place, std::size_t index, const QString& word)
{
    return singleLine(bareObjectElement, place, index, word);
}

Statement objectTypeLine(const ArrayPlace& place, std::size_t index, const QString& word)
{
    return singleLine(objectTypeElement, place, index, word);
}

Statement bareObjectTypeLine(const ArrayPlace& place, std::size_t index, const QString& word)
{
    return singleLine(bareObjectTypeElement, place, index, word);
}

Statement realLine(const ArrayPlace& place, std::size_t index, double value, NumberForm numbers)
{
    const bool rounded = areRounded({value}, numbers);
    const QString word = formatted(value, formIn(place.writer, numbers, rounded));
    const Statement line = elementLine(realElement, place, index, word);
    return rounded ? place.writer.faulty(line, kSixDigits) : line;
}

// Of all lines of points the values are indentation, line end, name, the indices of the coordinates (but none in C++),
// and the coordinates; in COM the number of the locals stands last.

static const Phrase point2d{
    "array of plane points",
    {
        .cpp = "%1%3.add(%4);%3.add(%5);%2",
        .cppCom = "%1x=%6; y=%7;%2"
                  "%1rgIndices%8=%4;%2%1SafeArrayPutElement( %3.parray, &rgIndices%8, (double*)&(x) );%2"
                  "%1rgIndices%8=%5;%2%1SafeArrayPutElement( %3.parray, &rgIndices%8, (double*)&(y) );%2",
        .vbNet = "%1%3( %4 )=%6%2%1%3( %5 )=%7%2",
        .vba = "%1%3( %4 )=%6%2%1%3( %5 )=%7%2",
    }};

static const Phrase point3d{
    "array of points",
    {
        .cpp = "%1%3.add(%4);%3.add(%5);%3.add(%6);%2",
        .cppCom = "%1x_%10=%7; y_%10=%8; z_%10=%9;%2"
                  "%1rgIndices%10=%4;%2%1SafeArrayPutElement( %3.parray, &rgIndices%10, (double*)&(x_%10) );%2"
                  "%1rgIndices%10=%5;%2%1SafeArrayPutElement( %3.parray, &rgIndices%10, (double*)&(y_%10) );%2"
                  "%1rgIndices%10=%6;%2%1SafeArrayPutElement( %3.parray, &rgIndices%10, (double*)&(z_%10) );%2",
        .vbNet = "%1%3( %4 )=%7%2%1%3( %5 )=%8%2%1%3( %6 )=%9%2",
        .vba = "%1%3( %4 )=%7%2%1%3( %5 )=%8%2%1%3( %6 )=%9%2",
    }};

/// Numbers that a statement holds the text of, and of each part of a text with more: of plane points and others.
static constexpr std::size_t kHeldNumbers = 6 * 2048;

/// The text of the coordinates, made by a function of them and the range to write.
template<class Text>
static Statement inParts(Coordinates&& coordinates, const Text& text)
{
    const std::size_t count = coordinates.values.size();
    if (count <= kHeldNumbers)
        return text(coordinates, 0, count);
    return Statement([coordinates = std::move(coordinates), text, count](std::size_t part) {
        const std::size_t first = part * kHeldNumbers;
        return first < count ? text(coordinates, first, std::min(count, first + kHeldNumbers)) : QString();
    });
}

/// More points stand one by one, so that a reader sees where each begins.
static constexpr std::size_t kMostFlatPoints = 4;

static Statement pythonPoints(const Writer& writer, const Coordinates& coordinates)
{
    const auto axes = static_cast<std::size_t>(coordinates.axes);
    const bool starred = coordinates.values.size() > kMostFlatPoints * axes;
    QString list;
    Statement::Notes notes;
    for (std::size_t first = 0; first + axes <= coordinates.values.size(); first += axes) {
        if (first > 0)
            list += QLatin1String(", ");
        Answerable point{.meaning = Meaning::Point, .length = 0, .axes = coordinates.axes, .starred = starred};
        const int place = list.size();
        list += QLatin1String(starred ? "*(" : "");
        for (std::size_t i = 0; i < axes; ++i) {
            point.numbers[i] = coordinates.values[first + i];
            list += QLatin1String(i > 0 ? ", " : "");
            list += pythonReal(point.numbers[i]);
        }
        list += QLatin1String(starred ? ")" : "");
        point.length = list.size() - place;
        if (writer.notesAnswerable)
            notes.push_back({place, std::move(point)});
    }
    return {std::move(list), std::move(notes)};
}

Statement coordinateList(Writer& writer, Coordinates coordinates, NumberForm numbers)
{
    if (writer.target == Target::Python)
        return pythonPoints(writer, coordinates);
    const bool rounded = areRounded(coordinates.values, numbers);
    numbers = formIn(writer, numbers, rounded);
    const Statement text =
        inParts(std::move(coordinates), [numbers](const Coordinates& all, std::size_t first, std::size_t end) {
            QString list;
            for (std::size_t i = first; i < end; ++i) {
                if (i > 0)
                    list += ',';
                list += formatted(all.values[i], numbers);
            }
            return list;
        });
    return rounded ? writer.faulty(text, kSixDigits) : text;
}

static Statement comPointsHead(const ArrayPlace& place, int axes)
{
    static const Template planarHead("%1long rgIndices%3;%2%1rgIndices%3 = -1;%2%1double x, y;%2");
    static const Template spatialHead("%1long rgIndices%3;%2%1rgIndices%3 = -1;%2%1double x_%3, y_%3, z_%3;%2");
    return Fill(axes == 2 ? &planarHead : &spatialHead)
        .word(place.indentation)
        .word(place.lineEnd)
        .number(place.number);
}

static QString pointLinesOf(const ArrayPlace& place, const Coordinates& coordinates, std::size_t from, std::size_t end,
                            NumberForm numbers)
{
    const Target target = place.writer.target;
    QString lines;
    const auto axes = static_cast<std::size_t>(coordinates.axes);
    const Template* const words = (axes == 2 ? point2d : point3d).in(target);
    for (std::size_t first = from; first + axes <= end; first += axes) {
        Fill line(words);
        line.word(place.indentation).word(place.lineEnd).word(place.name);
        for (std::size_t i = first; target != Target::Cpp && i < first + axes; ++i)
            line.number(qulonglong{i});
        for (std::size_t i = first; i < first + axes; ++i) {
            if (numbers == NumberForm::Long)
                line.real(coordinates.values[i]);
            else
                line.shortReal(coordinates.values[i]);
        }
        lines += line.number(place.number).str().text();
    }
    return lines;
}

Statement pointLines(const ArrayPlace& place, Coordinates coordinates, NumberForm numbers)
{
    const Statement head = place.writer.target == Target::CppCom ? comPointsHead(place, coordinates.axes) : Statement();
    const bool rounded = areRounded(coordinates.values, numbers);
    numbers = formIn(place.writer, numbers, rounded);
    const Statement text = head + inParts(std::move(coordinates),
                                          [place, numbers](const Coordinates& all, std::size_t first, std::size_t end) {
                                              return pointLinesOf(place, all, first, end, numbers);
                                          });
    return rounded ? place.writer.faulty(text, kSixDigits) : text;
}

Statement comPointLines(const ArrayPlace& place, const OdGePoint3d& point, NumberForm numbers, bool declareLocals)
{
    static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = 0;%2");
    static const Template locals("%1double x, y, z;%2");
    static const Template values("%1x=%5; y=%6; z=%7;%2"
                                 "%1SafeArrayPutElement( %3.parray, &rgIndices%4, (double*)&(x) );%2%1rgIndices%4=1;%2"
                                 "%1SafeArrayPutElement( %3.parray, &rgIndices%4, (double*)&(y) );%2%1rgIndices%4=2;%2"
                                 "%1SafeArrayPutElement( %3.parray, &rgIndices%4, (double*)&(z) );%2");
    Statement lines = Fill(&head).word(place.indentation).word(place.lineEnd).number(place.number);
    if (declareLocals)
        lines += Fill(&locals).word(place.indentation).word(place.lineEnd).str();
    Fill put(&values);
    put.word(place.indentation).word(place.lineEnd).word(place.name).number(place.number);
    const bool rounded = areRounded({point.x, point.y, point.z}, numbers);
    const bool isLong = formIn(place.writer, numbers, rounded) == NumberForm::Long;
    lines += (isLong ? put.point(point) : put.shortPoint(point)).str();
    return rounded ? place.writer.faulty(lines, kSixDigits) : lines;
}

Fill& ArrayArgument::open(Fill& call) const
{
    if (target == Target::CSharp || target == Target::JavaScript || target == Target::Python)
        return call.word(words);
    call.number(number);
    if (isBasic(target))
        call.number(highestIndex());
    return call.word(words);
}

Fill& ArrayArgument::close(Fill& call) const
{
    return target == Target::CppCom ? call.number(count) : call;
}

static const Fault kTooManyValues{
    "array in front of a call", {Target::JavaScript}, "an array is made of more values than browsers pass to a call"};

/// Each takes 24 bytes of the 984 KB that browsers and node have for calls: node refuses 41,900, and more than 65,535
/// no browser of its engine takes.
static constexpr int kMostValues = 30'000;

static const Fault kSingleNumber{
    "array in front of a call", {Target::JavaScript}, "of a single number an array of that length is made, without it"};

/// A script's own array in front of the call.
static Statement scriptArray(Writer& writer, const QString& name, const Statement& list, int count, Brackets brackets)
{
    const QString blank = brackets == Brackets::Spaced ? QStringLiteral(" ") : QString();
    const bool isLong = count > kMostValues;
    const bool isLiteral = (isLong || count == 1) && writer.repairs;
    const Statement text = writer.indentation() + "var " + name + (isLiteral ? " = [" : " = new Array(") + blank +
                           list + blank + (isLiteral ? "];" : ");") + LineEnd;
    return isLong ? writer.faulty(text, kTooManyValues) : count == 1 ? writer.faulty(text, kSingleNumber) : text;
}

ArrayArgument coordinateArray(Writer& writer, Coordinates coordinates, const char* script, NumberForm numbers,
                              Brackets scriptBrackets)
{
    const Target target = writer.target;
    ArrayArgument array{target};
    array.count = static_cast<int>(coordinates.values.size());
    if (target == Target::CSharp || target == Target::Python) {
        array.words = coordinateList(writer, std::move(coordinates), numbers);
        return array;
    }
    array.number = ++writer.UniqueCounter;
    if (target == Target::JavaScript) {
        array.words = script + QString::number(array.number);
        array.before = scriptArray(writer, array.words.text(), coordinateList(writer, std::move(coordinates), numbers),
                                   array.count, scriptBrackets);
        return array;
    }
    const QString name = (target == Target::CppCom ? "variant" : "Coordinates") + QString::number(array.number);
    array.words = pointLines({writer, name, array.number}, std::move(coordinates), numbers);
    return array;
}

ArrayArgument integerArray(Writer& writer, const std::vector<int>& values, std::uint32_t number, const char* name,
                           const char* script, Brackets scriptBrackets)
{
    const Target target = writer.target;
    ArrayArgument array{target, number, static_cast<int>(values.size())};
    if (target != Target::CSharp && target != Target::JavaScript && target != Target::Python) {
        const ArrayPlace place(writer, name + QString::number(number), number, Brackets::Tight);
        array.words = integerLines(place, values);
        return array;
    }
    QStringList list;
    for (const int value : values)
        list.append(QString::number(value));
    array.words = list.join(QLatin1String(target == Target::Python ? ", " : ","));
    if (target == Target::JavaScript) {
        const QString variable = script + QString::number(number);
        array.before = scriptArray(writer, variable, array.words, array.count, scriptBrackets);
        array.words = variable;
    }
    return array;
}

Fill fillList(Writer& writer, const Phrase& phrase)
{
    return isBasic(writer.target) || writer.target == Target::CppCom ? writer.fill(phrase)
                                                                     : writer.fillIndented(phrase);
}

int arrayBound(Writer& writer, std::size_t count)
{
    return static_cast<int>(count) - (isBasic(writer.target) ? 1 : 0);
}

Statement listHead(Writer& writer, const Phrase& phrase, std::size_t count)
{
    return fillList(writer, phrase).number(writer.UniqueCounter).number(arrayBound(writer, count));
}
