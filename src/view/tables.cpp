// Tables: a grid and the texts of its cells.

#include "view/drawers.h"
#include "view/noteText.h"
#include "view/plane.h"
#include "view/readings.h"
#include "view/textBlock.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>
#include <numeric>

namespace inkmacro::view {
namespace {

constexpr double kUsualTextHeight = 2.5;
constexpr int kMostCells = 10'000; ///< how many there are is recorded by itself

struct Grid
{
    Point corner; ///< of the first cell
    double rotation;
    double down; ///< -1 for a table that grows upwards
    std::vector<double> rows;
    std::vector<double> columns;
};

/// The sizes of rows or columns: those recorded by number, else those of the drawing, else that of the third or the
/// first, which an insertion gives all of them; and together what the whole takes.
struct Sizes
{
    const char* count;
    const char* size;
    const char* whole;
    int usual; ///< the number of the one that all others are like
};

constexpr Sizes kRows{"Rows", "RowHeight_%1", "Table height", 2};
constexpr Sizes kColumns{"Columns", "ColumnWidth_%1", "Table width", 0};

std::vector<double> sizesOf(const Values& values, const Sizes& tags, const std::vector<double>& drawn)
{
    const auto drawnCount = static_cast<int>(drawn.size());
    const int count = std::clamp(values.choice(tags.count).value_or(drawnCount), 0, kMostCells);
    const auto recorded = [&](int i) { return values.number(QString(tags.size).arg(i)); };
    std::vector<double> sizes;
    for (int i = 0; i < count; ++i) {
        const std::optional<double> fromDrawing =
            i < drawnCount ? std::optional(drawn[static_cast<std::size_t>(i)]) : std::nullopt;
        sizes.push_back(sizeOf({recorded(i), fromDrawing, recorded(tags.usual)}, 0.0));
    }
    return sizes;
}

/// Sizes that are not known share what the whole leaves them.
void fill(std::vector<double>& sizes, double whole, double usual)
{
    const double known = std::accumulate(sizes.begin(), sizes.end(), 0.0);
    const auto unknown = static_cast<double>(std::count(sizes.begin(), sizes.end(), 0.0));
    const double share = unknown > 0.0 && whole > known ? (whole - known) / unknown : usual;
    std::replace(sizes.begin(), sizes.end(), 0.0, share);
}

template<class Numbers>
std::vector<double> numbersOf(const Numbers& numbers)
{
    return {numbers.begin(), numbers.end()};
}

Grid gridOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbTable>();
    Grid grid{};
    grid.corner = placeOf(values, "Position").value_or(drawn ? fromAbove(drawn->position()) : Point());
    grid.rotation = drawn ? drawn->rotation() : 0.0;
    grid.down = values.text("Direction").value_or(QString()).compare("Up", Qt::CaseInsensitive) == 0 ? -1.0 : 1.0;
    std::vector<double> heights;
    std::vector<double> widths;
    for (unsigned row = 0; drawn && row < drawn->numRows(); ++row)
        heights.push_back(drawn->rowHeight(row));
    for (unsigned column = 0; drawn && column < drawn->numColumns(); ++column)
        widths.push_back(drawn->columnWidth(column));
    grid.rows = sizesOf(values, kRows, heights);
    grid.columns = sizesOf(values, kColumns, widths);
    fill(grid.rows, sizeOf({values.number(kRows.whole)}, drawn ? drawn->height() : 0.0), 4.0 * kUsualTextHeight);
    fill(grid.columns, sizeOf({values.number(kColumns.whole)}, drawn ? drawn->width() : 0.0), 10.0 * kUsualTextHeight);
    return grid;
}

/// A place in the table, to the right and down from its corner.
Point placed(const Grid& grid, double right, double down)
{
    const Point along = directionOf(grid.rotation);
    return grid.corner + along * right - leftOf(along) * (down * grid.down);
}

double sum(const std::vector<double>& sizes)
{
    return std::accumulate(sizes.begin(), sizes.end(), 0.0);
}

Outline outlineOf(const Grid& grid)
{
    const double width = sum(grid.columns);
    const double height = sum(grid.rows);
    Outline outline;
    outline.move(placed(grid, 0.0, 0.0)).line(placed(grid, width, 0.0));
    outline.line(placed(grid, width, height)).line(placed(grid, 0.0, height)).close();
    return outline;
}

/// A title goes over all columns of the first row.
bool hasTitle(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbTable>();
    return drawn && drawn->cellStyle(0, -1).contains("title", Qt::CaseInsensitive);
}

void drawLines(Pen& pen, const Grid& grid, bool titled)
{
    const double width = sum(grid.columns);
    const double height = sum(grid.rows);
    double down = 0.0;
    pen.line(placed(grid, 0.0, 0.0), placed(grid, width, 0.0));
    for (const double row : grid.rows) {
        down += row;
        pen.line(placed(grid, 0.0, down), placed(grid, width, down));
    }
    pen.line(placed(grid, 0.0, 0.0), placed(grid, 0.0, height));
    double right = 0.0;
    for (std::size_t i = 0; i < grid.columns.size(); ++i) {
        right += grid.columns[i];
        const double top = titled && i + 1 < grid.columns.size() ? grid.rows.front() : 0.0;
        pen.line(placed(grid, right, top), placed(grid, right, height));
    }
}

struct Cell
{
    Point middle;
    double width;
    double height;
};

void drawCell(Pen& pen, const Grid& grid, const Cell& cell, const QString& contents)
{
    constexpr double kMargin = 0.6; ///< of the letters' height, on each side
    constexpr int kCenter = 5;
    TextBlock block;
    block.lines = linesOfNote(contents);
    block.at = cell.middle;
    block.angle = grid.rotation;
    block.attachment = kCenter;
    const double needed = heightOf(block) * 1.2;
    if (needed > cell.height)
        block.height *= cell.height / needed;
    for (QString& line : block.lines)
        line = shortened(line, block.height, cell.width - 2.0 * kMargin * block.height);
    drawBlock(pen, block);
}

QString textOf(const Values& values, unsigned row, unsigned column)
{
    const auto* const drawn = values.drawnAs<OdDbTable>();
    const std::optional<QString> recorded = values.text(QStringLiteral("Contents_%1_%2").arg(row).arg(column));
    if (recorded || !drawn)
        return recorded.value_or(QString());
    return drawn->textString(row, column);
}

void drawTexts(const Values& values, Pen& pen, const Grid& grid, bool titled)
{
    double down = 0.0;
    for (unsigned row = 0; row < grid.rows.size(); ++row) {
        const double height = grid.rows[row];
        double right = 0.0;
        for (unsigned column = 0; column < grid.columns.size(); ++column) {
            const bool isTitle = titled && row == 0;
            const double width = isTitle ? sum(grid.columns) : grid.columns[column];
            if (const QString text = textOf(values, row, column); !text.isEmpty())
                drawCell(pen, grid, {placed(grid, right + width / 2.0, down + height / 2.0), width, height}, text);
            if (isTitle)
                break;
            right += width;
        }
        down += height;
    }
}

} // namespace

void drawTable(const Values& values, Pen& pen)
{
    const Grid grid = gridOf(values);
    if (grid.rows.empty() || grid.columns.empty()) {
        pen.remark("neither the recording nor its drawing tell its rows and columns");
        return;
    }
    if (grid.rows.size() * grid.columns.size() > kMostCells) {
        pen.path(outlineOf(grid));
        pen.remark("its cells, which are too many");
        return;
    }
    const bool titled = hasTitle(values);
    drawLines(pen, grid, titled);
    drawTexts(values, pen, grid, titled);
}

} // namespace inkmacro::view
