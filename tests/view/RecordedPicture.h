#pragma once

#include "recordfile/OpenDrawing.h"
#include "recordfile/RecordingReader.h"
#include "view/pictureOf.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QStringList>

// Lines of recordings; values are written as JSON.

using Tags = std::vector<std::pair<const char*, QString>>;

inline QString recordOf(const char* cls, const char* handle, const Tags& tags)
{
    QStringList properties;
    for (const auto& [tag, value] : tags)
        properties.append(QString(R"({"tag":"%1","value":%2})").arg(tag, value));
    return QString(R"({"class":"%1","handle":"%2","properties":[%3]})").arg(cls, handle, properties.join(','));
}

inline QString added(const char* cls, const char* handle, const Tags& tags)
{
    return R"({"added":)" + recordOf(cls, handle, tags) + '}';
}

inline QString modified(const char* cls, const char* handle, const Tags& tags)
{
    return R"({"modified":)" + recordOf(cls, handle, tags) + '}';
}

inline QString custom(int kind, const char* data)
{
    return QString(R"({"custom":{"kind":%1,"data":[%2]}})").arg(kind).arg(data);
}

inline QString command(const QStringList& actions)
{
    return QString(R"({"command":{"name":"X","actions":[%1]}})").arg(actions.join(','));
}

inline QString addedLine(const char* handle, double x0, double y0, double x1, double y1)
{
    const auto number = [](double value) { return QString::number(value); };
    return added("AcDbLine", handle,
                 {{"Start X", number(x0)}, {"Start Y", number(y0)}, {"End X", number(x1)}, {"End Y", number(y1)}});
}

inline QString addedCircle(const char* handle, double x, double y, double radius)
{
    const auto number = [](double value) { return QString::number(value); };
    return added("AcDbCircle", handle, {{"Center X", number(x)}, {"Center Y", number(y)}, {"Radius", number(radius)}});
}

/// The picture of a recording that is read from lines.
class RecordedPicture
{
public:
    using Numbers = std::vector<double>;

    explicit RecordedPicture(const QStringList& lines)
    {
        inkmacro::Recording recording;
        QBuffer file;
        file.setData(lines.join('\n').toUtf8());
        file.open(QIODevice::ReadOnly);
        const auto error = ReadRecording(file, "test", recording);
        EXPECT_FALSE(error) << error->text().toStdString();
        inkmacro::OpenDrawing open(recording);
        inkmacro::view::PictureSource source;
        if (const auto& sheet = recording.header.sheet; sheet && !sheet->model)
            source.sheet = sheet->name;
        picture = inkmacro::view::pictureOf(*recording.database, recording.actions, source);
    }

    /// The numbers of all that is there when so many steps are done.
    std::vector<Numbers> behind(int steps) const
    {
        std::vector<Numbers> there;
        for (const inkmacro::view::Primitive& one : picture.primitives)
            if ((one.from == inkmacro::view::kNoStep || one.from < steps) &&
                (one.until == inkmacro::view::kNoStep || one.until >= steps)) {
                const auto numbers = picture.numbersOf(one);
                there.emplace_back(numbers.begin(), numbers.end());
            }
        return there;
    }

    const inkmacro::view::PictureObject& object(std::uint64_t handle) const
    {
        static const inkmacro::view::PictureObject none;
        for (const inkmacro::view::PictureObject& one : picture.objects)
            if (one.handle == OdDbHandle(handle))
                return one;
        ADD_FAILURE() << "no object " << handle;
        return none;
    }

    QString remark(std::uint64_t handle) const
    {
        const std::uint16_t number = object(handle).remark;
        return number == 0 ? QString() : picture.remarks[number - 1U];
    }

    QString spaceOf(std::uint64_t handle) const { return picture.spaces[object(handle).space].name; }

    inkmacro::view::Picture picture;
};

/// The numbers of both but for their last digits.
inline void expectNear(const std::vector<RecordedPicture::Numbers>& seen,
                       const std::vector<RecordedPicture::Numbers>& wanted)
{
    ASSERT_EQ(seen.size(), wanted.size());
    for (std::size_t i = 0; i < seen.size(); ++i) {
        ASSERT_EQ(seen[i].size(), wanted[i].size()) << "primitive " << i;
        for (std::size_t n = 0; n < seen[i].size(); ++n)
            EXPECT_NEAR(seen[i][n], wanted[i][n], 1e-9) << "number " << n << " of primitive " << i;
    }
}
