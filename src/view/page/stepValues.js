// The values of a step as rows of name and text, out of the recording's own text.

'use strict';

const mostRows = 200;
const mostLetters = 2000;
const mostItems = 50;

function shortened(text) {
    return text.length > mostLetters ? text.slice(0, mostLetters) + '… and '
        + countOf(text.length - mostLetters, 'more character', 'more characters') : text;
}

function pointText(point) {
    return '(' + point.join(', ') + ')';
}

function listText(items, textOf) {
    const rest = items.length - mostItems;
    return items.length ? items.slice(0, mostItems).map(textOf).join(', ')
        + (rest > 0 ? ' … and ' + rest.toLocaleString('en') + ' more' : '') : 'none';
}

function colorText(color) {
    return typeof color === 'string' ? 'by ' + color.slice(2) : color.rgb ? 'rgb ' + color.rgb.join(' ')
        : 'index ' + color.index;
}

function quoted(text) {
    return '“' + shortened(text) + '”';
}

const transparencyWays = ['by layer', 'by block'];

// Texts of what has one key that tells its form; `nameOf` gives the words for a handle.
const formTexts = {
    text: quoted, string: quoted, double: String, int: String, int8: String, int16: String, int32: String,
    bool: value => value ? 'yes' : 'no', point: pointText, vector: pointText, point2d: pointText, point3d: pointText,
    color: colorText, id: (value, nameOf) => nameOf(value), handle: (value, nameOf) => nameOf(value), class: String,
    transparency: value => transparencyWays[value.method] || 'alpha ' + value.alpha,
    collection: (value, nameOf) => collectionText(value, nameOf),
    element: (value, nameOf) => elementText(value, nameOf), strings: value => listText(value, quoted),
    handles: (value, nameOf) => listText(value, nameOf), ids: (value, nameOf) => listText(value, nameOf),
    classes: value => listText(value, String), points: value => listText(value, pointText),
    points2d: value => listText(value, pointText), doubles: value => listText(value, String),
    ints: value => listText(value, String)
};

// An element is what its value says; its tag is a number then, except among handles that are tags.
function elementText(one, nameOf) {
    const isTag = typeof one.tag === 'string' && (one.value === null || typeof one.value === 'number');
    return recordedText(isTag ? one.tag : one.value, nameOf);
}

// All that can be chosen, of which one was, or a list.
function collectionText({chosen, elements = []}, nameOf) {
    return elements[chosen] ? elementText(elements[chosen], nameOf)
        : listText(elements, one => elementText(one, nameOf));
}

function recordedText(value, nameOf) {
    if (value === null || value === undefined) {
        return 'nothing';
    }
    if (typeof value === 'string') {
        return quoted(value);
    }
    if (Array.isArray(value)) {
        return listText(value, one => recordedText(one, nameOf));
    }
    if (typeof value !== 'object') {
        return typeof value === 'boolean' ? formTexts.bool(value) : String(value);
    }
    const form = Object.keys(value).find(key => Object.prototype.hasOwnProperty.call(formTexts, key));
    return form ? formTexts[form](value[form], nameOf) : shortened(JSON.stringify(value));
}

const axes = ['X', 'Y', 'Z'];

// How many properties from `at` on are the coordinates of one point: 'Start X', 'Start Y' and perhaps 'Start Z'.
function coordinatesAt(properties, at) {
    const [, name] = /^(.+) X$/.exec(properties[at].tag) || [];
    let count = 0;
    while (name && count < 3 && properties[at + count] && properties[at + count].tag === name + ' ' + axes[count]
        && typeof properties[at + count].value === 'number' && properties[at + count].old === undefined
        && JSON.stringify(properties[at + count].index) === JSON.stringify(properties[at].index)) {
        ++count;
    }
    return count > 1 ? count : 0;
}

// Rows of {name, text, color, old, isChange}; `old` is a text where it is recorded.
function propertyRows(properties, isChange, nameOf) {
    const rows = [];
    for (let i = 0; i < properties.length; ++i) {
        const property = properties[i];
        const count = isChange ? 0 : coordinatesAt(properties, i);
        const place = property.index === undefined || property.index === null ? ''
            : ' [' + recordedText(property.index, nameOf) + ']';
        if (count) {
            rows.push({name: property.tag.slice(0, -2) + place,
                text: pointText(properties.slice(i, i + count).map(one => one.value))});
            i += count - 1;
            continue;
        }
        const {value, old} = property;
        rows.push({name: property.tag + place, text: recordedText(value, nameOf), isChange: isChange,
            color: value && value.color, old: old === undefined ? null : recordedText(old, nameOf)});
    }
    return rows;
}

// What was there before is told of each, or once of all that it is not.
function rowsOfChanges(properties, nameOf) {
    const rows = propertyRows(properties, true, nameOf);
    if (!rows.length || rows.some(row => row.old !== null)) {
        return rows;
    }
    rows.forEach(row => { row.isChange = false; });
    return [...rows, {heading: rows.length > 1 ? 'values before: not recorded' : 'value before: not recorded'}];
}

function rowsOfAdded(added, nameOf) {
    const rows = propertyRows(added.properties || [], false, nameOf);
    if (!added.extra || JSON.stringify(added.extra) === JSON.stringify(added.properties)) {
        return rows;
    }
    return [...rows, {heading: 'Second list of properties'}, ...propertyRows(added.extra, false, nameOf)];
}

function rowsOfInteraction(interaction, nameOf) {
    const rows = [{name: 'prompt', text: quoted(interaction.prompt || '')},
        {name: 'asks for', text: String(interaction.kind)},
        {name: 'answer', text: recordedText(interaction.result, nameOf)}];
    const words = interaction.keywords && interaction.keywords.global;
    return words && words.length ? [...rows, {name: 'keywords', text: listText(words, quoted)}] : rows;
}

const rowsOfKinds = {
    added: rowsOfAdded,
    modified: (modified, nameOf) => rowsOfChanges(modified.properties || [], nameOf),
    property: (property, nameOf) => rowsOfChanges([property], nameOf),
    sysvar: (variable, nameOf) => [{name: variable.name, text: recordedText(variable.value, nameOf)}],
    interaction: rowsOfInteraction,
    selection: (selection, nameOf) => [{name: 'objects',
        text: listText(selection.objects || [], object => nameOf(object.handle))}],
    custom: (custom, nameOf) => [{name: 'kind', text: String(custom.kind)},
        ...(custom.data || []).map((datum, i) => ({name: (i + 1) + ' ' + Object.keys(datum)[0],
            text: recordedText(datum, nameOf), color: datum.color}))],
    null: () => [{name: 'empty place', text: 'of the recording'}]
};

function rowsOfAction(action, nameOf) {
    const kind = Object.keys(rowsOfKinds).find(name => name in action);
    return kind ? rowsOfKinds[kind](action[kind], nameOf) : [];
}

// What the drawing says of an object: its line, parsed, or null. Those lines stand in front of all steps.
function drawnObject(data, handle) {
    const {recording, steps} = data;
    const end = recording.starts[steps.count ? steps.line[0] - 1 : recording.count];
    const search = new ByteSearch(handle + '"'); // zeros may stand in front
    for (let at = search.next(recording.bytes, 0); at >= 0 && at < end;) {
        const line = recording.lineAt(at);
        const text = recording.line(line);
        const {object} = text.includes('"object"') ? JSON.parse(text) : {};
        if (object && String(object.handle).replace(/^0+(?=.)/, '').toUpperCase() === handle) {
            return object;
        }
        at = search.next(recording.bytes, recording.starts[line + 1]);
    }
    return null;
}

function rowsOfDrawn(object, nameOf) {
    return Object.keys(object).filter(key => key !== 'class' && key !== 'handle').map(key => {
        const value = object[key];
        const isPoint = Array.isArray(value) && value.every(one => typeof one === 'number');
        const isPoints = Array.isArray(value) && value.length && value.every(Array.isArray);
        return {name: key, text: isPoint ? pointText(value) : isPoints ? listText(value, pointText)
            : key === 'layer' ? nameOf(value) : key === 'color' ? colorText(value) : recordedText(value, nameOf)};
    });
}

// Words for handles: the recorded name of a layer, a style or the like, else class and handle. Only those are looked
// for in the drawing, which takes a while.
class HandleNames {
    constructor(data) {
        this.data = data;
        this.names = new Map();
    }

    of(handle) {
        const text = String(handle).toUpperCase();
        if (!this.names.has(text)) {
            this.names.set(text, this.find(text));
        }
        return this.names.get(text);
    }

    find(handle) {
        const {data} = this;
        const object = data.objectByHandle(handle);
        const isNamed = object >= 0 && /TableRecord$|Layout$|Style$/.test(data.className(data.objects.cls[object]));
        const name = isNamed ? this.nameOf(object, handle) : '';
        const words = object >= 0 ? data.classWords(data.objects.cls[object]) : 'handle';
        return name ? quoted(name) : words + ' ' + handle;
    }

    nameOf(object, handle) {
        const {data} = this;
        const added = object >= 0 ? data.objects.added[object] : -1;
        if (added >= 0) {
            const action = data.action(added).added;
            const named = action && action.properties.find(property => /^Name$|StyleName$/.test(property.tag));
            return named && typeof named.value === 'string' ? named.value : '';
        }
        const drawn = drawnObject(data, handle);
        return drawn && (drawn.name || drawn.layoutName) || '';
    }
}

function valuesElement(rows) {
    const list = element('dl', {class: 'values'});
    for (const row of rows.slice(0, mostRows)) {
        if (row.heading) {
            list.append(element('dt', {class: 'valuesHeading'}, row.heading));
            continue;
        }
        const value = element('dd', {});
        if (row.old) {
            value.append(textElement('del', {}, row.old), ' → ');
        }
        if (row.color && row.color.rgb) {
            const swatch = element('span', {class: 'swatch', 'aria-hidden': 'true'});
            swatch.style.backgroundColor = 'rgb(' + row.color.rgb.map(Number).join(',') + ')';
            value.append(swatch);
        }
        value.append(textElement('span', {}, row.text));
        if (row.isChange && row.old === null) {
            value.append(' ', element('small', {class: 'muted'}, 'value before: not recorded'));
        }
        list.append(textElement('dt', {}, row.name), value);
    }
    if (rows.length > mostRows) {
        list.append(element('dt', {class: 'valuesHeading'},
            'and ' + countOf(rows.length - mostRows, 'more value', 'more values')));
    }
    return list;
}
