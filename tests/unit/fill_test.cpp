#include "statements/Fill.h"

#include "TestTarget.h"

#include "host/rx/OdError.h"
#include "statements/Phrase.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <variant>
#include <vector>

namespace inkmacro {
namespace {

struct Indent
{
    unsigned level;
};
struct Long
{
    double value;
};
struct Short
{
    double value;
};
using Value = std::variant<Indent, QString, QLatin1String, int, unsigned, qint64, quint64, Long, Short>;
using Values = std::vector<Value>;

template<class... Ts>
struct Overloaded : Ts...
{
    using Ts::operator()...;
};
template<class... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

const QChar blank(' ');

QString argOf(const QString& text, const Value& value)
{
    return std::visit(Overloaded{
                          [&](Indent indent) { return text.arg(blank, static_cast<int>(4 * indent.level), blank); },
                          [&](const QString& string) { return text.arg(string); },
                          [&](QLatin1String string) { return text.arg(string); },
                          [&](Long real) { return text.arg(real.value, 0, 'f', 14, blank); },
                          [&](Short real) { return text.arg(real.value, 0, 'g', -1, blank); },
                          [&](auto integer) { return text.arg(integer, 0, 10, blank); },
                      },
                      value);
}

bool hasMarker(const QString& text)
{
    for (int i = text.indexOf('%'); i != -1; i = text.indexOf('%', i + 1)) {
        const int digit = text.mid(i + 1, 1) == "L" ? i + 2 : i + 1;
        if (digit < text.size() && text[digit].digitValue() != -1) {
            return true;
        }
    }
    return false;
}

QString byArgChain(const std::string& literal, const Values& values)
{
    QString text = QString::fromLatin1(literal.c_str());
    for (const Value& value : values) {
        if (hasMarker(text)) {
            text = argOf(text, value);
        }
    }
    return text;
}

QString byFill(const std::string& literal, const Values& values)
{
    const Template words(literal.c_str());
    Fill fill(&words);
    for (const Value& value : values) {
        std::visit(Overloaded{
                       [&](Indent indent) { fill.indent(indent.level); },
                       [&](const QString& string) { fill.text(string); },
                       [&](QLatin1String string) { fill.word(string); },
                       [&](Long real) { fill.real(real.value); },
                       [&](Short real) { fill.shortReal(real.value); },
                       [&](auto integer) { fill.number(integer); },
                   },
                   value);
    }
    return textOf(fill);
}

std::string shown(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.17g (%a)", value, value);
    return text;
}

std::string shown(const std::string& literal, const Values& values)
{
    std::string all = "template \"" + QString::fromLatin1(literal.c_str()).toStdString() + '"';
    for (const Value& value : values) {
        all +=
            std::visit(Overloaded{
                           [](Indent indent) { return "\n  indent " + std::to_string(indent.level); },
                           [](const QString& string) { return "\n  text \"" + string.toStdString() + '"'; },
                           [](QLatin1String string) { return "\n  Latin-1 \"" + QString(string).toStdString() + '"'; },
                           [](Long real) { return "\n  real " + shown(real.value); },
                           [](Short real) { return "\n  short real " + shown(real.value); },
                           [](auto integer) { return "\n  number " + std::to_string(integer); },
                       },
                       value);
    }
    return all;
}

/// Counts what is printed by Qt while it lives, and keeps it off the terminal.
class Messages
{
public:
    Messages() : before_(qInstallMessageHandler(&Messages::take)) { count_ = 0; }
    ~Messages() { qInstallMessageHandler(before_); }
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    int count() const { return count_; }

private:
    static void take(QtMsgType, const QMessageLogContext&, const QString&) { ++count_; }

    static inline std::atomic<int> count_ = 0;
    QtMessageHandler before_;
};

class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~DefaultLocale() { QLocale::setDefault(before_); }
    DefaultLocale(const DefaultLocale&) = delete;
    DefaultLocale& operator=(const DefaultLocale&) = delete;

private:
    QLocale before_;
};

double under(double value)
{
    return std::nextafter(value, 0.0);
}

const std::vector<double> oddReals{0.0,    -0.0,    -4e-15,   -5e-15,    5e-15,       under(10), under(1),
                                   1e-320, 5e-324,  DBL_MIN,  1e14,      under(1e15), 1e15,      1e22,
                                   1e300,  DBL_MAX, INFINITY, -INFINITY, NAN,         -NAN};

/// Around the ends of the ranges of the short form.
const std::vector<double> shortReals{
    1e-4,         under(1e-4),  9.99999e-5,      9.9999949e-5, 9.999995e-5, 0.00099999949,
    0.0009999995, 0.001,        under(0.01),     0.1,          9.9999949,   9.999995,
    10,           99999.5,      99999.949999,    99999.95,     123456.5,    123455.5,
    999999,       999999.49999, under(999999.5), 999999.5,     1e6,         1234565};

const std::vector<const char*> plainTexts{"", " ", "\n", "\r\n", "7", "42", "L", "L3", "line1", "x%", "a b"};
const std::vector<const char*> oddTexts{"%", "%5", "%1", "%L1", "%%", "%0", "%L", "%12", "100%", "%%2", "%L%3", "%99"};
const std::vector<const char*> latin1Texts{"", "9", "L4", "\xb2", "\xe4\xf6\xfc", "name", "%3", "%", "%\xb9"};

class Random
{
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    int below(int end) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(end)); }
    bool oneIn(int n) { return below(n) == 0; }
    template<class T>
    const T& of(const std::vector<T>& all)
    {
        return all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
    }

    double real()
    {
        const double sign = oneIn(2) ? -1 : 1;
        switch (below(6)) {
        case 0:
            return sign * (oneIn(2) ? of(oddReals) : of(shortReals));
        case 1: // halfway between two numbers with 14 decimals
            return sign * (2 * below(1 << 20) + 1) * std::ldexp(1, -15);
        case 2: // halfway between two numbers with few digits
            return sign * (2 * below(1 << 20) + 1) * std::ldexp(1, -1 - below(8));
        case 3:
            return std::bit_cast<double>(engine_());
        case 4: // a coordinate as users type it
            return sign * below(2'000'000) / std::pow(10, below(7));
        default: // a computed coordinate
            return sign * std::uniform_real_distribution<double>(0, std::pow(10, below(17) - 5))(engine_);
        }
    }

    QString text(bool odd)
    {
        switch (below(odd ? 5 : 3)) {
        case 0:
            return QString();
        case 1:
            return QString("text %1").arg(below(100));
        case 2: // digits beyond Latin-1 also make markers: this one is an Arabic 5
            return oneIn(4) ? QString(QChar(0x0665)) : QString(of(plainTexts)).remove('%');
        case 3:
            return QString(of(plainTexts));
        default:
            return QString(of(oddTexts)) + QString(of(plainTexts));
        }
    }

    Value value(bool odd)
    {
        switch (below(10)) {
        case 0:
            return Indent{static_cast<unsigned>(below(4))};
        case 1:
            return odd ? QLatin1String(of(latin1Texts)) : QLatin1String("name");
        case 2:
            return static_cast<int>(engine_());
        case 3:
            return oneIn(2) ? static_cast<unsigned>(engine_()) : static_cast<unsigned>(below(20));
        case 4:
            return oneIn(8) ? std::numeric_limits<qint64>::min() : static_cast<qint64>(engine_()) >> below(64);
        case 5:
            return oneIn(8) ? std::numeric_limits<quint64>::max() : quint64{engine_()} >> below(64);
        case 6:
            return Short{real()};
        case 7:
        case 8:
            return text(odd);
        default:
            return Long{real()};
        }
    }

    /// An odd template has what hardly anyone writes; any other, what statements are made of.
    std::string literal(bool odd)
    {
        static const std::vector<const char*> usual{" ", ", ", "( ", " );", "name.Set", "\"", "5", "07", ".", " = "};
        static const std::vector<const char*> strange{"%%1",  "%L1",  "%L2", "%0",  "%00",  "%03",  "%",
                                                      "%L",   "%%",   "%L%", "L",   "% 1",  "\xb9", "%\xb2",
                                                      "\xb3", "%4%3", "%LL", "%l1", "%1%1", "\xe4"};
        std::string all;
        const int numbers = oneIn(10) ? 40 : 12;
        for (int pieces = below(15); pieces > 0; --pieces) {
            if (odd && oneIn(4)) {
                all += of(strange);
            } else if (oneIn(2)) {
                all += '%' + std::to_string(1 + below(numbers));
            } else {
                all += of(usual);
            }
        }
        return all;
    }

private:
    std::mt19937_64 engine_;
};

void expectLikeArgChain(std::uint64_t seed, int cases)
{
    Random random(seed);
    const Messages messages;
    for (int i = 0; i < cases; ++i) {
        const std::string literal = random.literal(random.oneIn(2));
        const bool oddValues = random.oneIn(2);
        Values values;
        for (int left = random.oneIn(10) ? 40 : random.below(14); left > 0; --left) {
            values.push_back(random.value(oddValues));
        }
        const QString expected = byArgChain(literal, values);
        const QString filled = byFill(literal, values);
        ASSERT_TRUE(filled == expected) << "case " << i << ", " << shown(literal, values) << "\nexpected \""
                                        << expected.toStdString() << "\"\nis \"" << filled.toStdString() << '"';
    }
    EXPECT_EQ(messages.count(), 0);
}

TEST(Fill, EqualsArgChainOnRandomCases)
{
    expectLikeArgChain(20'240'229, 150'000);
}

TEST(Fill, EqualsArgChainInAnotherLocale)
{
    const DefaultLocale german{QLocale(QLocale::German)};
    expectLikeArgChain(1'848, 30'000);
}

struct Case
{
    const char* literal;
    Values values;
    const char* expected;
};

void expectTexts(const std::vector<Case>& cases)
{
    for (const Case& one : cases) {
        EXPECT_EQ(byFill(one.literal, one.values).toStdString(), one.expected) << shown(one.literal, one.values);
    }
}

TEST(Fill, WritesEachKindOfValue)
{
    expectTexts({
        {"[%1]", {Indent{0}}, "[ ]"},
        {"[%1]", {Indent{1}}, "[    ]"},
        {"[%1]", {Indent{3}}, "[            ]"},
        {"%1;", {QString("text")}, "text;"},
        {"%1;", {QString()}, ";"},
        {"%1", {QLatin1String("\xe9")}, "é"},
        {"%1 %2", {-7, 7U}, "-7 7"},
        {"%1", {std::numeric_limits<qint64>::min()}, "-9223372036854775808"},
        {"%1", {std::numeric_limits<quint64>::max()}, "18446744073709551615"},
        {"%1", {quint64{0}}, "0"},
        {"%1", {Long{1.5}}, "1.50000000000000"},
        {"%1", {Short{1.5}}, "1.5"},
    });
}

TEST(Fill, GivesValuesToMarkersByNumber)
{
    expectTexts({
        {"%2 %1", {1, 2}, "2 1"},
        {"%1%9 = f( %3, %4 );%2", {Indent{1}, QString("\n"), 3, 4, QString("it")}, "    it = f( 3, 4 );\n"},
        {"%3 and %3 and %8", {1, 2}, "1 and 1 and 2"},
        {"%11 %2", {1, 2}, "2 1"},
        {"%123", {7}, "73"},
        {"%0 %1", {1, 2}, "1 2"},
        {"%01 %1", {1, 2}, "1 1"},
        {"%1 %2 %3 %4 %5 %6 %7 %8 %9 %10 %11 %12 %13 %14 %15 %16 %17 %18",
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18},
         "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18"},
    });
}

TEST(Fill, LeavesMarkersWithoutValueAndDropsValuesWithoutMarker)
{
    expectTexts({
        {"%1.%11Set", {QString("line")}, "line.%11Set"},
        {"%1%2", {}, "%1%2"},
        {"%2", {1, 2, 3}, "1"},
        {"100% of 5", {1}, "100% of 5"},
        {"%", {1}, "%"},
        {"%L", {1}, "%L"},
        {"", {1}, ""},
    });
}

TEST(Fill, ReadsMarkersThatValuesMake)
{
    expectTexts({
        {"%1 %2", {QString("%5 user"), 8, 9}, "9 user 8"},
        {"%1 %2", {QString("user %2"), 8}, "user 8 8"},
        {"%1", {QString("%"), 8}, "%"},
        {"%4%3", {7}, "%47"},
        {"%4%3", {7, QString("x")}, "x"},
        {"%4%3", {QString("\n"), 8}, "8\n"},
        {"%4%3x", {QString(), 8}, "8x"},
        {"%4%035", {QString(), 8}, "8"},
        {"%4%035", {QString("-"), 8}, "8-5"},
        {"%5%3%4", {QString(), 7, 8}, "8"},
        {"%%1", {7}, "%7"},
        {"%%1", {7, 8}, "8"},
        {"%%12", {QLatin1String("L"), 8}, "%L"},
        {"%%13", {QLatin1String("L"), 8}, "%L"},
        {"%%1%2", {QString("L"), 4, 5}, "5"},
        {"%%1%2", {QString(), 4, 5}, "5"},
        {"%L%1", {7, 8}, "8"},
        {"%\xb9 %2", {7, 8}, "7 8"},
        {"%1\xb2 %2", {7, 8}, "8 7"},
    });
}

TEST(Fill, WritesLocalNumbersOnlyAtLocalMarkers)
{
    const DefaultLocale german{QLocale(QLocale::German)};
    expectTexts({
        {"%L1 %1", {1234567}, "1.234.567 1234567"},
        {"%L1 %1", {Long{1234.5}}, "1.234,50000000000000 1234.50000000000000"},
        {"%L1 %1", {QString("1234567")}, "1234567 1234567"},
    });
}

TEST(Fill, PrintsNothing)
{
    const Messages messages;
    expectTexts({
        {"no marker", {1, QString("%"), Indent{1}, Long{1}}, "no marker"},
        {"%1", {1, 2, Short{3}}, "1"},
        {"%%1", {QString("x"), 2, 3}, "%x"},
        {"%L1", {QString("x"), 2, 3}, "x"},
        {"%1", {QString("100%"), 2, 3}, "100%"},
    });
    EXPECT_EQ(messages.count(), 0);
    EXPECT_EQ(QString("no marker").arg(1), "no marker");
    EXPECT_EQ(messages.count(), 1) << "the handler does not see Qt's warnings";
}

const QString manyFives = QString("%5").repeated(1024);
const QString manySixes = QString("%6").repeated(1024);

TEST(Fill, RefusesTextThatGrowsTooLong)
{
    const auto outcome = [](const std::string& literal, const Values& values) {
        try {
            return QString::number(byFill(literal, values).size());
        } catch (const OdError& error) {
            EXPECT_EQ(error.code(), eTextTooLong);
            return QString(error.what());
        }
    };
    const QString grown("markers in the texts of a statement would make it more than 16 MiB longer");
    const QString letters(4096, 'a');
    EXPECT_EQ(outcome("%1", {manyFives, manySixes, letters}), grown);
    EXPECT_EQ(outcome("%1", {manyFives, manySixes, Indent{1024}}), grown);
    EXPECT_EQ(outcome("%1", {manyFives, manySixes + "%L6", letters}), grown);
    EXPECT_EQ(outcome("%1", {manyFives, manySixes, QString(17, 'a')}), grown);
    EXPECT_EQ(outcome("%1", {manyFives, manySixes, QString(16, 'a')}), "16777216");
    // Without a marker in any value, or with one between long texts.
    const QString long4(80'000'000, 'a');
    EXPECT_EQ(outcome("%1%2%1%1%1", {long4, 1}), "a statement would be longer than 256 MiB");
    EXPECT_EQ(outcome("%1%2%1", {long4, 1}), "160000001");
    EXPECT_EQ(outcome("%1%2%1", {long4, QString("%3"), 1}), "160000001");
}

TEST(Fill, EqualsArgChainWithAMillionMarkers)
{
    for (const Values& values :
         {Values{manyFives, manySixes, Long{1.5}}, Values{manyFives, manySixes, QString("ab"), 7}}) {
        const QString filled = byFill("%1", values);
        EXPECT_GT(filled.size(), 1 << 20);
        EXPECT_TRUE(filled == byArgChain("%1", values));
    }
}

/// Also of one that gives a constant, as the operators of Qt do. A sanitizer sees what is read after its end.
TEST(Fill, TakesTheTextOfAnExpression)
{
    static const Template words("%1 is %2, %3 is %4");
    const QString longer(40, 'x');
    EXPECT_EQ(
        Fill(&words).text(QString("it")).text(QString("s") + "o").text("a" + longer).text(CFxString(longer)).str(),
        "it is so, a" + longer + " is " + longer);
}

TEST(FormatLong, HasFourteenDecimals)
{
    const std::vector<std::pair<double, const char*>> cases{
        {0.0, "0.00000000000000"},
        {-0.0, "0.00000000000000"},
        {-4e-15, "-0.00000000000000"},
        {1.5, "1.50000000000000"},
        {-1203.0625, "-1203.06250000000000"},
        {0.3333333333333333, "0.33333333333333"},
        {0.1 + 0.2, "0.30000000000000"},
        {9.999999999999996, "10.00000000000000"},
        {std::ldexp(1, -15), "0.00003051757813"},
        {std::ldexp(3, -15), "0.00009155273438"},
        {-std::ldexp(1, -15), "-0.00003051757813"},
        {1e22, "10000000000000000000000.00000000000000"},
        {INFINITY, "inf"},
        {NAN, "nan"},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(FormatLong(value), expected) << shown(value);
    }
}

TEST(FormatShort, HasSixSignificantDigits)
{
    const std::vector<std::pair<double, const char*>> cases{
        {0.0, "0"},
        {-0.0, "0"},
        {0.5, "0.5"},
        {-2.5, "-2.5"},
        {1.0000004, "1"},
        {1.23456789, "1.23457"},
        {0.00012345678, "0.000123457"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {100000, "100000"},
        {123456.5, "123457"},
        {123455.5, "123456"},
        {999999.5, "1e+06"},
        {1000000, "1e+06"},
        {1234567, "1.23457e+06"},
        {INFINITY, "inf"},
        {NAN, "nan"},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(FormatShort(value), expected) << shown(value);
    }
}

TEST(Format, EqualsArgOnRandomNumbers)
{
    Random random(314'159);
    const auto expectLikeArg = [](double value) {
        ASSERT_EQ(FormatLong(value), argOf("%1", Long{value})) << shown(value);
        ASSERT_EQ(FormatShort(value), argOf("%1", Short{value})) << shown(value);
    };
    for (const auto& reals : {oddReals, shortReals}) {
        for (const double value : reals) {
            expectLikeArg(value);
            expectLikeArg(-value);
        }
    }
    for (int i = 0; i < 200'000 && !HasFatalFailure(); ++i) {
        expectLikeArg(random.real());
    }
}

TEST(Phrase, HasTheLiteralsOfItsTargets)
{
    const Phrase phrase{
        "EmitTest",
        {.cpp = "0", .cppCom = "4", .csharp = "1", .javascript = "2", .vbNet = "3", .vba = "5", .python = "6"}};
    EXPECT_STREQ(phrase.name(), "EmitTest");
    for (unsigned char code = 0; code < targetCount; ++code) {
        EXPECT_EQ(Fill(phrase.in(Target{code})).str(), QString::number(code));
    }
}

TEST(Phrase, YieldsEmptyTextForHoles)
{
    const Phrase phrase{"EmitTest", {.cpp = "a%1", .csharp = "", .vba = "b%1"}};
    EXPECT_TRUE(phrase.has(Target::Cpp));
    EXPECT_TRUE(phrase.has(Target::CSharp));
    EXPECT_FALSE(phrase.has(Target::VbNet));
    EXPECT_NE(phrase.in(Target::CSharp), nullptr);
    EXPECT_EQ(phrase.in(Target::VbNet), nullptr);
    EXPECT_EQ(Fill(phrase.in(Target::Vba)).number(1).str(), "b1");
    EXPECT_EQ(Fill(phrase.in(Target::VbNet)).number(1).text(QString("%1")).str(), "");
}

TEST(Phrase, IsListedWhileItLives)
{
    const auto listed = [](const Phrase* phrase) {
        return std::count(Phrase::all().begin(), Phrase::all().end(), phrase);
    };
    const std::size_t others = Phrase::all().size();
    {
        const Phrase first{"EmitTest", {}};
        const Phrase second{"EmitTest", {}};
        EXPECT_EQ(listed(&first), 1);
        EXPECT_EQ(listed(&second), 1);
    }
    EXPECT_EQ(Phrase::all().size(), others);
}

TEST(Phrase, GivesAllThreadsOneTemplate)
{
    const Phrase phrase{"EmitTest", {.cpp = "%1"}};
    std::vector<const Template*> seen(8);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (const Template*& one : seen) {
        threads.emplace_back([&phrase, &one] { one = phrase.in(Target::Cpp); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_NE(seen.front(), nullptr);
    EXPECT_EQ(std::count(seen.begin(), seen.end(), seen.front()), std::ssize(seen));
}

} // namespace
} // namespace inkmacro
