// Values: as records have them, as objects hold them, and whether the one is the other.

'use strict';

const tolerance = 1e-9; // of numbers of the size of coordinates; of larger ones relative
const anything = Symbol('anything'); // in place of a value that is not known
const yesWords = ['Yes', 'YES', 'Visible', 'Enabled'];
const customArrow = 20;

// Names by their numbers from the first one on, which stands for all others too.
function numbered(first, ...names) {
    const table = {'*': names[0]};
    names.forEach((name, i) => { table[first + i] = name; });
    return table;
}

const arrows = numbered(0, 'ClosedFilled', 'ClosedBlank', 'Closed', 'Dot', 'ArchitecturalTick', 'Oblique', 'Open',
    'OriginIndicator', 'OriginIndicator2', 'RightAngle', 'Open30', 'DotSmall', 'DotBlank', 'DotSmallBlank', 'Box',
    'BoxFilled', 'DatumTriangle', 'DatumTriangleFilled', 'Integral', 'None', 'Custom');
const weights = Object.assign({'*': 'ByLwDefault', [-1]: 'ByLayer', [-2]: 'ByBlock'},
    ...[0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211].map(
        weight => ({[weight]: String(weight).padStart(3, '0')})));
const scales = Object.assign({'1\'-0" = 1\'-0"': '1ft_1ft'}, ...['1/128', '1/64', '1/32', '1/16', '3/32', '1/8', '3/16',
    '1/4', '3/8', '1/2', '3/4', '1', '3', '6'].map(scale => ({[scale + '" = 1\'-0"']: scale + 'in_1ft'})));
// What numbers mean, by the end of the question that they answer, and enumerators that do not repeat the shown text.
const enumerators = {
    LineWeight: weights,
    LineWeigthInViewport: weights,
    FitSmooth: {Quadratic: 'Qudratic'},
    Direction: Object.assign({Up: 'BottomToTop', Down: 'TopToBottom', ByStyle: 'ByStyle', Vertical: 'Vertical',
        Horizontal: 'Horizontal'}, numbered(0, 'ByStyle', 'Vertical', 'Horizontal')),
    LineSpacingStyle: numbered(0, 'AtLeast', 'Exactly'),
    'CurvedSettings.Alignment': numbered(1, 'Fit', 'Left', 'Right', 'Center'),
    TextSide: numbered(1, 'OnConvexSide', 'OnConcaveSide'),
    TextDirection: numbered(1, 'OutwardFromCenter', 'InwardToTheCenter'),
    StartArrow: arrows,
    EndArrow: arrows,
    LeaderArrow: arrows,
    Type: numbered(0, 'LineWithNoArrow', 'SplineWithNoArrow', 'LineWithArrow', 'SplineWithArrow'),
    'AngularDimensionOptions.Format': numbered(0, 'DecimalDegrees', 'Deg_Min_Sec', 'Grads', 'Radians'),
    Precision: numbered(0, ...'012345678'),
    ArcLengthSymbols: numbered(0, 'BeforeDimText', 'AboveDimText', 'None'),
    'DualDimensionOptions.Format': numbered(1, 'Scientific', 'Decimal', 'Engineering', 'ArchitecturalStacked',
        'FractionalStacked', 'Architectural', 'Fractional', 'WindowsDesktop'),
    'LinearDimensionOptions.Format': numbered(1, 'Scientific', 'Decimal', 'Engineering', 'Architectural', 'Fractional',
        'WindowsDesktop'),
    FractionalDisplay: numbered(0, 'Horizontal', 'Diagonal', 'NotStacked'),
    HorizontalPosition: numbered(0, 'Centered', 'AtExtLine1', 'AtExtLine2', 'OverExtLine1', 'OverExtLine2'),
    VerticalPosition: numbered(0, 'Centered', 'Above', 'Outside', 'JIS'),
    VerticalTextJustification: numbered(0, 'Bottom', 'Middle', 'Top'),
    FitGeometry: numbered(0, 'TextAndArrows', 'Arrows', 'Text', 'Automatic', 'KeepTextBetweenExtensionLines'),
    FitDimensionText: numbered(0, 'NextToDimensionLine', 'AboveDimensionLineWithLeader',
        'AboveDimensionLineWithoutLeader'),
    'TextOptions.Alignment': numbered(0, 'UseISOStandard', 'AlignHorizontally', 'AlignWithDimensionLines'),
    Calculation: numbered(0, 'None', 'Symmetrical', 'Deviation', 'Limits', 'Basic'),
    DecimalSeparator: {' ': 'Space', ',': 'Comma', '.': 'Period'},
    CenterMarkDisplay: numbered(0, 'None', 'AsCenterLine', 'AsMark'),
    StandardScale: scales,
    Measure: numbered(0, 'UseYAxis', 'UseXAxis'),
    ArcSymbolType: numbered(0, 'PrecedingDimensionText', 'AboveDimensionText', 'None')
};
// Of two ends that fit a question the longer one counts.
const enumeratorEnds = Object.keys(enumerators).sort((a, b) => b.length - a.length);

// One of several values: its number and how it was shown, of which one may be missing.
class Choice {
    constructor(number, text) {
        this.number = number;
        this.text = text;
    }

    shown() {
        return this.text === '' || this.text === null || this.text === undefined ? this.number : this.text;
    }
}

function heldOf(thing, question, index) {
    const values = thing.held.get(question);
    return values && values[index];
}

function isColor(value) {
    return value !== null && typeof value === 'object' && 'color' in value;
}

// Whether the word of a record says yes.
function isYes(value) {
    return yesWords.includes(value instanceof Choice ? value.shown() : value);
}

// NaN of what is no number.
function numberOf(value) {
    const plain = value instanceof Choice ? value.number : value;
    return typeof plain === 'number' || typeof plain === 'string' && plain.trim() !== '' ? Number(plain) : NaN;
}

// Of angles full turns do not count.
function isClose(one, other, isTurn) {
    const turn = 2 * Math.PI;
    const difference = isTurn ? (one - other) - Math.round((one - other) / turn) * turn : one - other;
    return Math.abs(difference) <= tolerance * Math.max(1, Math.abs(one), Math.abs(other));
}

function plain(text) {
    return String(text).replace(/\W|_/g, '').toLowerCase();
}

function fitsBoolean(question, seen, number, text) {
    const isWord = typeof text === 'string' && !yesWords.includes(text);
    if (isWord && yesWords.includes(text.slice(0, 1).toUpperCase() + text.slice(1).toLowerCase())) {
        return seen || question !== 'Closed()'; // not everywhere read in any case
    }
    return seen === (text === true || number === 1 && !text || yesWords.includes(text));
}

function fitsEnumerator(question, seen, number, text) {
    const place = question.split('(')[0];
    const names = enumerators[enumeratorEnds.find(end => place.endsWith(end))] || {};
    let name = text || String(number);
    if (text in names) {
        name = names[text];
    } else if (number !== undefined) {
        name = names[Math.trunc(number)] || names['*'] || name;
    }
    return plain(seen.slice(seen.indexOf('_') + 1)) === plain(name);
}

// Whether what an object holds is what the record says.
function fits(question, seen, wanted, isTurn) {
    if (seen === wanted || wanted === anything) {
        return true;
    }
    if (isColor(wanted) || isColor(seen)) {
        return isColor(wanted) && isColor(seen) && JSON.stringify(seen.color) === JSON.stringify(wanted.color);
    }
    let [number, text] = wanted instanceof Choice ? [wanted.number, wanted.text] : [undefined, wanted];
    if (typeof text === 'number') {
        [number, text] = [text, ''];
    }
    if (typeof seen === 'boolean') {
        return fitsBoolean(question, seen, number, text);
    }
    if (typeof seen === 'number') {
        const value = numberOf(text === '' || text === undefined ? number : text);
        // Whole percents.
        return question === 'Transparency.ByAlpha()' ? Math.abs(seen - value) < 1 : isClose(seen, value, isTurn);
    }
    if (typeof seen === 'string' && /^iw\w+_/.test(seen)) {
        return fitsEnumerator(question, seen, number, text);
    }
    return typeof seen === 'string' && withoutNumber(seen) === withoutNumber(text)
        || seen instanceof Thing && (seen.name === text || heldOf(seen, 'Name()', 0) === text);
}

// A value as people and JSON have it.
function shownValue(value) {
    if (value instanceof Choice) {
        return value.shown();
    }
    if (value instanceof Thing) {
        return value.handle || value.name || value.cls;
    }
    return value === undefined || value === anything ? null : isColor(value) ? value.color : value;
}
