#include "statements/Fill.h"

#include <benchmark/benchmark.h>

#include <array>

namespace inkmacro {
namespace {

constexpr const char* line = "%1%9 = iwSketchManager.InsertLine( %3, %4, %5, %6, %7, %8 );%2";
constexpr std::array coordinates{12.5, 4.75, 1203.0625, 0.3333333333333333, 3.141592653589793, 0.0};

constexpr const char* note = "%1%8 = iwSketchManager.InsertSimpleNote( textPosition, %3, \"%4\", %5 );%2"
                             "%1If Not %8 Is Nothing Then%2%1    Call %8.SetTextStyle( \"%6\" )%2"
                             "%1    Call %8.SetLayer( \"%7\" )%2%1End If%2";

const QString name("line12");
const QString lineEnd("\r\n");
const QString content("All dimensions are in millimetres unless otherwise stated");
const QString style("Standard annotative");
const QString layer("Notes and remarks");
const QString noteName("simpleNote7");

void BM_FillLine(benchmark::State& state)
{
    const Template words(line);
    for ([[maybe_unused]] auto _ : state) {
        Fill fill(&words);
        fill.indent(2).word(lineEnd);
        for (const double coordinate : coordinates) {
            fill.real(coordinate);
        }
        fill.word(name);
        benchmark::DoNotOptimize(fill.str());
    }
}
BENCHMARK(BM_FillLine);

void BM_ArgChainLine(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        QString text = QString::fromLatin1(line).arg(QChar(' '), 8, QChar(' ')).arg(lineEnd);
        for (const double coordinate : coordinates) {
            text = text.arg(coordinate, 0, 'f', 14, QChar(' '));
        }
        text = text.arg(name);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(BM_ArgChainLine);

void BM_FillText(benchmark::State& state)
{
    const Template words(note);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(Fill(&words)
                                     .indent(2)
                                     .word(lineEnd)
                                     .shortReal(2.5)
                                     .text(content)
                                     .number(3)
                                     .text(style)
                                     .text(layer)
                                     .word(noteName)
                                     .str());
    }
}
BENCHMARK(BM_FillText);

void BM_ArgChainText(benchmark::State& state)
{
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(QString::fromLatin1(note)
                                     .arg(QChar(' '), 8, QChar(' '))
                                     .arg(lineEnd)
                                     .arg(2.5, 0, 'g', -1, QChar(' '))
                                     .arg(content)
                                     .arg(3, 0, 10, QChar(' '))
                                     .arg(style)
                                     .arg(layer)
                                     .arg(noteName));
    }
}
BENCHMARK(BM_ArgChainText);

} // namespace
} // namespace inkmacro
