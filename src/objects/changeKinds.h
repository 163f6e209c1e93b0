#pragma once

#include "objects/ChangeRows.h"

// All kinds of change. Where nothing else is said, a kind sets the row's property to the value. A word is the value's
// text as the property sheet shows it; an element is a value of choice type that came as the chosen item alone, and
// kinds that begin with "chosen" take the item also from among all items, but write nothing where none is chosen; those
// that begin with "any" take a plain value as well.
namespace kinds {

// Numbers. What they are to the user tells which answers they may be.
extern const ChangeKind length;
extern const ChangeKind angle;
extern const ChangeKind factor;
extern const ChangeKind integer;
/// A length, with the row's operation, by number of a repeated property.
extern const ChangeKind indexedReal;
/// `Radius` of a circle, which the host also records as what depends on it.
extern const ChangeKind radiusFromArea;
extern const ChangeKind radiusFromCircumference;
extern const ChangeKind radiusFromDiameter;

// Truth values.
extern const ChangeKind yes;      ///< the element's word without regard to case
extern const ChangeKind exactYes; ///< with case
extern const ChangeKind visible;
extern const ChangeKind exactEnabled;
extern const ChangeKind plainYes; ///< a plain text
extern const ChangeKind plainNo;  ///< a plain text, and "No" is true
/// Among all items the first one is "Yes", whatever it is called; a value of no choice type writes nothing.
extern const ChangeKind yesOrFirst;
extern const ChangeKind anyYes; ///< without regard to case; whatever is no "Yes" is false
extern const ChangeKind chosenYes;
extern const ChangeKind otherTransparency; ///< a picture's own, by the name of the one that all entities have

// Members of an enumeration.
ChangeKind enumText(const inkmacro::TextEnumeration& enumeration);   ///< by the element's word
ChangeKind enumValue(const inkmacro::ValueEnumeration& enumeration); ///< by the element's number
ChangeKind chosenEnumText(const inkmacro::TextEnumeration& enumeration);
ChangeKind anyEnumText(const inkmacro::TextEnumeration& enumeration);
ChangeKind anyEnumValue(const inkmacro::ValueEnumeration& enumeration); ///< by number
/// That member where the answer is yes, nothing where it is no: one of several tags for one property.
ChangeKind exactYesEnum(const inkmacro::ValueEnumeration& enumeration, const char* suffix);
ChangeKind plainYesEnum(const inkmacro::ValueEnumeration& enumeration, const char* suffix);
extern const ChangeKind decimalSeparator; ///< by the separator itself

// Texts.
extern const ChangeKind quoted; ///< the element's word
extern const ChangeKind chosenQuoted;
extern const ChangeKind anyQuoted;
extern const ChangeKind contents;           ///< the same, of what the user writes
extern const ChangeKind doubledBackslashes; ///< of any text, in all targets
/// The part of a dimension's text that stands on one side of the measure; one that holds but the measure's sign is not
/// written.
extern const ChangeKind affix;
/// Both parts in one text, the measure's sign between them: sets `Prefix` and `Suffix`. Without the sign all is prefix.
extern const ChangeKind prefixAndSuffix;
extern const ChangeKind escaped;  ///< a plain text with what the target's quotes need
extern const ChangeKind unquoted; ///< a length that is recorded as a plain text, as it stands
extern const ChangeKind integerText;

// Looks. Numbers and names come in any form where nothing else is said.
extern const ChangeKind color;
extern const ChangeKind lineWeight;
extern const ChangeKind lineStyle; ///< by the style's record or its name
extern const ChangeKind arrow;     ///< by the element's number, with the row's operation

// The looks of dimensions, with the row's operation where there is one.
extern const ChangeKind dimensionArrow; ///< an arrow of one's own by its block
extern const ChangeKind styleArrow;     ///< the same, of a dimension style
extern const ChangeKind scaleFactor;    ///< a given factor
extern const ChangeKind sheetScale;     ///< where the answer is yes
extern const ChangeKind centerMark;     ///< the kind of mark by number
extern const ChangeKind centerMarkSize;
/// Both: a length is the mark's size, negative for center lines; an element is the kind of a mark without a size.
extern const ChangeKind styleCenterMark;
ChangeKind fixedLength(const char* lengthTag); ///< of extension lines; the row's tag says whether it is fixed
extern const ChangeKind textInside;            ///< of a dimension that is in the drawing, where the answer is yes

// The looks of notes and curved texts.
extern const ChangeKind noteDirection;
extern const ChangeKind noteLineSpacing; ///< by number
extern const ChangeKind fontParameter;   ///< on or off

// The looks of tables and table styles. Those of cells have the cell type as the record's number, with the row's
// operation where there is one.
extern const ChangeKind tableStyle;
extern const ChangeKind orientation; ///< the row has the object's word: "Table" or "TableStyle"
extern const ChangeKind cellAlignment;
extern const ChangeKind cellTextStyle;
extern const ChangeKind cellColor;
extern const ChangeKind cellLength;
extern const ChangeKind gridColor; ///< the record's number is an element: the cell type and, as value, the line
extern const ChangeKind gridLineWeight;

// A layer, and with the row's operation what it looks like in the active viewport alone.
extern const ChangeKind activation; ///< where the plain text is "Yes"
extern const ChangeKind overrideYes;
extern const ChangeKind overrideColor;
extern const ChangeKind overrideLineStyle; ///< by the style's record or its name
extern const ChangeKind overrideLineWeight;
extern const ChangeKind overrideText;
extern const ChangeKind overrideInteger;

// A coordinate of a point that the host reads and writes as a whole: by "Get" and "Set" in front of the property, or
// by a pair of operations that belongs to the kind.
extern const ChangeKind point;
extern const ChangeKind indexedPoint;
extern const ChangeKind scale; ///< of a block
extern const ChangeKind position;
extern const ChangeKind firstPoint;
extern const ChangeKind secondPoint;
extern const ChangeKind vertex; ///< the tags' axes are in lower case
extern const ChangeKind vertex2D;
extern const ChangeKind coordinate;      ///< X and Y alone
extern const ChangeKind planeCoordinate; ///< of a point in a plane; the tags' axes are in lower case
/// The host counts these from 1 and has a pair of operations for each.
extern const ChangeKind numberedVertex;
extern const ChangeKind faceVertex; ///< there are four

// Names of styles.
extern const ChangeKind textStyleName;
extern const ChangeKind styleName; ///< of another one
extern const ChangeKind dimensionStyleName;
extern const ChangeKind richLineStyleName; ///< also of a layer and a group

} // namespace kinds
