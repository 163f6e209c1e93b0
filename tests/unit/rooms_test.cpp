// The rooms of the source tree: what a folder may include.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <map>

namespace {

/// The picture in the architecture page, from the top down. A room includes itself and what stands in lines below its
/// own; the two columns in the middle do not see each other.
struct Rooms
{
    Rooms()
    {
        QFile page(INKMACRO_SOURCE_DIR "/docs/architecture.md");
        EXPECT_TRUE(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        const QString picture = text.section("```rooms\n", 1).section("```", 0, 0);
        int line = 0;
        for (const QString& words : picture.split('\n')) {
            ++line;
            const QStringList columns = words.split('|');
            for (int column = 0; column < columns.size(); ++column)
                if (const QString room = columns[column].trimmed(); !room.isEmpty())
                    places[room] = {line, columns.size() == 1 ? 0 : column + 1};
        }
    }

    struct Place
    {
        int line;
        int column; ///< 0: across the page
    };

    /// The innermost room of a file; empty for none.
    QString roomOf(const QString& path) const
    {
        for (QString folder = path.section('/', 0, -2); !folder.isEmpty(); folder = folder.section('/', 0, -2))
            if (places.count(folder) != 0)
                return folder;
        return {};
    }

    bool mayInclude(const QString& room, const QString& other) const
    {
        const Place& from = places.at(room);
        const Place& to = places.at(other);
        const bool apart = from.column != 0 && to.column != 0 && from.column != to.column;
        return room == other || (to.line > from.line && !apart);
    }

    std::map<QString, Place> places;
};

} // namespace

TEST(Rooms, IncludeOnlyWhatStandsBelow)
{
    const Rooms rooms;
    const QString source = INKMACRO_SOURCE_DIR "/src/";
    static const QRegularExpression include("^#include \"([^\"]+)\"", QRegularExpression::MultilineOption);
    int arrows = 0;
    for (QDirIterator files(source, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next().mid(source.size());
        const QString room = rooms.roomOf(path);
        ASSERT_FALSE(room.isEmpty()) << path.toStdString() << " is in no room of docs/architecture.md";
        QFile file(source + path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        for (auto found = include.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();) {
            const QString included = found.next().captured(1);
            // What generated text includes is no file of ours.
            if (!QFile::exists(source + included))
                continue;
            ++arrows;
            EXPECT_TRUE(rooms.mayInclude(room, rooms.roomOf(included)))
                << path.toStdString() << " includes " << included.toStdString();
        }
    }
    EXPECT_GT(arrows, 1000);
}
