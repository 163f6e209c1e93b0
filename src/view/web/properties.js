// What a recorded property says of an object: its value in plain form, and where the object holds it.

'use strict';

// How a number of the record becomes the one that the object holds.
const measures = {half: value => value / 2, round: value => value / (2 * Math.PI),
    area: value => Math.sqrt(Math.max(value, 0) / Math.PI)};

// The value of an attribute is a property of its block in a group of its own, under the attribute's tag.
function isAttribute(record) {
    return String(record.group || '').toLowerCase() === 'blockattributes';
}

// Recorded of a block without a name: the host numbers it when it is made.
function withoutNumber(name) {
    return typeof name === 'string' ? name.replace(/^\*U\d+$/, '*U') : '';
}

// A value of the record in plain form; `nameOf` gives the name of an object by its handle.
function valueOf(recorded, nameOf) {
    if (recorded === null || typeof recorded !== 'object') {
        return recorded;
    }
    const [form, held] = Object.entries(recorded)[0];
    switch (form) {
    case 'id': return nameOf(held) || undefined;
    case 'int': return new Choice(held, '');
    case 'transparency': return [true, true, (255 - held.alpha) / 2.55][held.method];
    case 'element': {
        const number = held.tag !== null && typeof held.tag === 'object' ? held.tag.int : undefined;
        return new Choice(number, valueOf(held.value, nameOf));
    }
    case 'collection': {
        const chosen = held.elements[held.chosen || 0];
        return chosen ? valueOf({element: chosen}, nameOf) : new Choice(held.chosen || 0, '');
    }
    case 'color': return {color: held};
    }
    return held;
}

// The cells that a table style's property is of, by their number, with that of their border. Without numbers these are
// the title and the border above.
function cellOf(index, withLine) {
    const {tag, value} = index.element || {tag: index, value: {}};
    const numbers = [tag, value].map(part => part && part.int !== undefined ? part.int : 1);
    return numbers.slice(0, withLine ? 2 : 1).join(',');
}

// What is asked of an object for the value, `which` telling which of several.
function questionOf(name, which) {
    if (name.includes('#')) {
        return name.replace('#', String(Number(which) + 1)) + '()';
    }
    return name.endsWith(')') ? name : name + '(' + which + ')';
}

// `assumed` is what the macro has in place of the value, undefined where it has the value.
function holdValue(one, row, record, action, assumed, nameOf) {
    let {name} = row;
    const {tag, value: recorded} = record;
    const index = typeof record.index === 'number' ? {int: Math.trunc(record.index)} : record.index || null;
    const hold = (question, at, value) => one.hold(question, at, value, tag, action);
    let value = valueOf(recorded, nameOf);
    if (row.is) {
        value = isYes(value) ? row.is : null;
    }
    if (row.other !== null && value !== null && value !== undefined) {
        hold(name + '()', row.index === 1 ? 0 : 1, /^\d+$/.test(row.other) ? Number(row.other) : row.other);
    }
    if (row.words.includes('mark') && typeof value === 'number') {
        // A number tells the kind of a center mark by its sign and its size besides.
        hold(name + '()', 1, Math.abs(value));
        value = new Choice(value > 0 ? 2 : value < 0 ? 1 : 0, '');
    }
    if (row.words.includes('affix') || row.words.includes('affixes')) {
        value = affixOf(value, row.words.includes('affixes'), behind =>
            hold(name.replace('Prefix', 'Suffix') + '()', 0, behind));
    }
    const number = index ? index.int : undefined;
    if (value === null || value === undefined
        || number !== undefined && !(number >= 0 && number < (name.includes('#') ? 4 : Infinity))) {
        return;
    }
    for (const measure of row.words.filter(word => word in measures)) {
        value = measures[measure](numberOf(value));
    }
    if (name === 'Transparency' && recorded !== null && typeof recorded === 'object' && recorded.transparency) {
        name += ['.ByLayer', '.ByBlock', '.ByAlpha'][recorded.transparency.method];
    }
    let which = number === undefined ? '' : String(number);
    if (row.words.includes('cell') || row.words.includes('line')) {
        which = cellOf(index || {}, row.words.includes('line'));
    }
    if (name.endsWith('Arrow') && value instanceof Choice && value.number === customArrow && one.cls !== 'AcDbLeader') {
        hold(name + '()', 1, value.text);
    }
    hold(questionOf(name, which), row.index, assumed === undefined ? value : assumed);
}

// A text in front of the measure, and where the property has `both` what is behind it. No other value is one.
function affixOf(value, both, holdBehind) {
    const text = value instanceof Choice ? value.text : value;
    if (typeof text !== 'string' || text === '' || text === '<>') {
        return null;
    }
    const at = both ? text.indexOf('<>') : -1;
    if (at < 0) {
        return text;
    }
    holdBehind(text.slice(at + 2));
    return text.slice(0, at);
}

// A collection that is none says nothing.
function holdPoints(one, row, recorded, tag, action) {
    const holdPoint = (question, point) => point.slice(0, row.points).forEach((coordinate, axis) =>
        one.hold(question, axis, coordinate, tag, action));
    if (recorded === null || typeof recorded !== 'object') {
        return;
    }
    if (recorded.point) {
        holdPoint(row.name + '()', recorded.point);
    }
    (recorded.collection ? recorded.collection.elements : []).forEach((element, number) => {
        const {point = []} = element.value !== null && typeof element.value === 'object' ? element.value : {};
        holdPoint(questionOf(row.name, String(number)), point);
    });
}
