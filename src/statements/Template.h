#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace inkmacro {

/// A Latin-1 literal, cut into plain text and markers. Markers are those of QString::arg: `%`, an optional `L` for the
/// locale's form of a number, one or two digits. Counted markers leave values out where there is none of their number.
class Template
{
public:
    /// Which of the values that come goes to a marker.
    enum class Markers
    {
        Ranked, ///< the next one to the lowest that is left
        Counted ///< the one of that number
    };
    explicit Template(const char* latin1, Markers markers = Markers::Ranked);

private:
    friend class Fill;

    /// A run of text_: plain text or a marker.
    struct Piece
    {
        int from;
        int length;
        int rank; ///< of the marker, noMarker for plain text
    };

    /// One marker number. The numbers are ranked upwards from 0, or one less when they are counted; values go to the
    /// ranks in turn.
    struct Rank
    {
        int places = 0;
        /// Some place follows an open end: text or a later marker to which digits could be added. A value which starts
        /// with a digit would make another marker there.
        bool exposed = false;
    };

    static constexpr int noMarker = -1;

    QString text_;
    std::vector<Piece> pieces_;
    std::vector<Rank> ranks_;
    bool local_ = false; ///< some marker has an L
};

/// A marker in a text.
struct Marker
{
    int begin;
    int end; ///< -1: there is none
    int number;
    bool local; ///< has an L
};

/// The first marker at or behind `from`. Digits are what Qt takes for digits, so also the superscripts of Latin-1.
Marker nextMarker(QStringView text, int from);

} // namespace inkmacro
