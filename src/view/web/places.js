// places.txt and calls.txt: where a recorded property stands in the object that a macro made, and which calls come of a
// custom action.

'use strict';

function linesOf(text) {
    return text.split('\n').map(line => line.trimEnd()).filter(line => line && !line.startsWith('#'));
}

// `interfaces` has the interface's class by the drawing's, `records` those of the drawing's records, with the tag of
// their names.
class Places {
    constructor(text) {
        this.interfaces = new Map();
        this.records = new Map();
        this.rows = new Map(); // by class and tag
        this.optional = new Set(); // class and question of what some insertions lack
        this.turns = new Set(['PatternAngle()0', 'NoteAnnotation.Rotation()0']); // questions with their index
        this.found = new Map(); // rows by class and tag, as they were asked for
        let cls = '';
        for (const line of linesOf(text)) {
            if (!line.startsWith(' ')) {
                const [name, made, ...tag] = line.split(' ');
                cls = name;
                if (tag.length) {
                    this.records.set(cls, {made: made, tag: tag.join(' ')});
                } else if (made) {
                    this.interfaces.set(cls, made);
                }
                continue;
            }
            const [tag, place] = line.trim().split(' = ');
            this.addRow(cls, tag, place);
        }
    }

    // `|` stands between the rows of an added and of a changed object.
    addRow(cls, tag, text) {
        const [added, changed] = text.split(' | ').map(one => this.parsePlace(cls, one));
        const both = {rank: this.rows.size, added: added, changed: changed || added};
        if (!tag.includes('*')) {
            this.rows.set(cls + ' ' + tag, both);
            return;
        }
        [...'XYZ'].forEach((letter, axis) => {
            const of = row => Object.assign({}, row, {index: axis});
            for (const one of [letter, letter.toLowerCase()]) {
                this.rows.set(cls + ' ' + tag.replace('*', one),
                    {rank: both.rank, added: of(both.added), changed: of(both.changed)});
            }
        });
    }

    parsePlace(cls, text) {
        const [name, ...words] = text.replace(/\?$/, '').split(' ');
        const [, question, points] = /^(.*?)(?:\[(\d)\])?$/.exec(name);
        const number = words.find((word, i) => /^\d+$/.test(word) && words[i - 1] !== 'with');
        const behind = word => words.includes(word) ? words[words.indexOf(word) + 1] : null;
        if (text.endsWith('?')) {
            this.optional.add(this.interfaces.get(cls) + ' ' + question + '()');
        }
        if (words.includes('turn')) {
            this.turns.add(question + '()' + Number(number || 0));
        }
        return {name: question, points: Number(points || 0), index: Number(number || 0), words: words, is: behind('is'),
            other: behind('with')};
    }

    // The interface's class of an object of the drawing, undefined where it has none.
    interfaceOf(record) {
        const {made} = this.records.get(record.class) || {made: this.interfaces.get(record.class)};
        return record.class !== 'AcDbViewTableRecord' ? made
            : record.isPaperspaceView ? 'SheetNamedView' : 'ModelNamedView';
    }

    // Null where there is none; its name is "-" where no macro carries the property.
    row(cls, tag, isAdded) {
        const both = this.both(cls, tag);
        return both && (isAdded ? both.added : both.changed);
    }

    // Of several properties in one place that of the last row counts.
    rank(cls, tag) {
        const both = this.both(cls, tag);
        return both ? both.rank : 0;
    }

    both(cls, tag) {
        const key = cls + ' ' + tag;
        if (!this.found.has(key)) {
            this.found.set(key, this.find(cls, tag));
        }
        return this.found.get(key);
    }

    find(cls, tag) {
        const numbers = tag.match(/(?<=_)\d+/g) || [];
        const common = cls.includes('Dimension') ? ['dimension', 'every'] : ['every'];
        const keys = [cls + ' ' + tag.replace(/(?<=_)\d+/g, '#'), ...common.map(one => one + ' ' + tag)];
        const both = this.rows.get(keys.find(one => this.rows.has(one))) || null;
        const of = row => Object.assign({}, row,
            {name: numbers.reduce((text, one) => text.replace('#', one), row.name)});
        return both && numbers.length ? {rank: both.rank, added: of(both.added), changed: of(both.changed)} : both;
    }
}

// The value of a datum, whatever its form.
function datumOf(data, number) {
    return data[number] === undefined ? undefined : Object.values(data[number])[0];
}

function listOf(value) {
    return Array.isArray(value) ? value : [value];
}

// What an action hands to an operation by `field`: handles as {handle}, what is not compared as null.
function handedBy(field, data, several) {
    const [, isLength, number, , span, owners] = /^(-?)(\*|\d+)(:([\d-]+))?(?:\/(\d+))?$/.exec(field);
    const datum = data[number === '*' ? several : Number(number)] || {};
    const isHandle = 'handle' in datum || 'handles' in datum;
    let values = listOf(Object.values(datum)[0]);
    const ends = isHandle ? values : owners ? datumOf(data, Number(owners)) : [];
    if (isLength) {
        return values.map((_, i) => ({of: ends[i] || null, value: null}));
    }
    values = values.map(one => isHandle ? {handle: one} : one);
    const parts = [];
    values.forEach((one, i) => listOf(one).forEach(value => parts.push({of: ends[i] || null, value: value})));
    return span ? parts.slice(...span.split('-').map(Number)) : parts;
}

class Calls {
    constructor(text) {
        this.rows = linesOf(text).map(line => {
            const [head, handed] = line.split(' =');
            const words = head.split(' ');
            const name = words[words.length - 1];
            return {kind: Number(words[0]), conditions: words.slice(1, -1), name: name.replace('!', ''),
                isWhole: name.endsWith('!'), fields: handed.split(' ').filter(one => one)};
        });
        this.names = new Set(this.rows.map(row => row.name).concat(Object.values(joins), ['DeleteLine', 'AddLine']));
    }

    // Those that an action makes: {name, isWhole, owner, handed}. What it hands over is of objects, which may be lost.
    of(action) {
        const found = [];
        for (const row of this.rows.filter(one => one.kind === action.kind && isMet(one.conditions, action.data))) {
            const severals = row.fields.includes('*') ? action.data.map((_, i) => i).slice(2) : [0];
            const [owners, ...fields] = /^(on|first)/.test(row.fields[0] || '') ? row.fields : ['', ...row.fields];
            for (const several of severals) {
                const handed = flatten(fields.map(field => handedBy(field.replace('each', ''), action.data, several)));
                const each = fields.includes('each0') ? handed.map(one => [one]) : [handed];
                for (const owner of ownersOf(owners, action.data)) {
                    each.forEach(one => found.push({name: row.name, isWhole: row.isWhole, owner: owner, handed: one}));
                }
            }
        }
        return found.concat(joinsOf(action));
    }
}

// The lines of a rich line style as the drawing has them: each takes the place of one of a new style, from the outermost
// on. Of two in one place the later one counts.
function linesOfStyle(handle, elements, nameOf) {
    const byOffset = new Map(elements.map(one => [one.offset || 0, one]));
    const sorted = [...byOffset.values()].sort((a, b) => (b.offset || 0) - (a.offset || 0));
    const call = (name, ...handed) => ({name: name, isWhole: true, owner: handle,
        handed: handed.map(value => ({of: null, value: value}))});
    return flatten(sorted.map((one, i) => [call('DeleteLine', i), call('AddLine', one.offset || 0,
        one.color && one.color.rgb ? null : {color: one.color || 'bylayer'}, nameOf(one.lineStyle))]));
}

function isMet(conditions, data) {
    return conditions.every(one => {
        const [, number, sign, word] = /^(\d*)([#=:])(.*)$/.exec(one);
        return sign === '#' ? data.length === Number(word)
            : sign === '=' ? listOf(datumOf(data, Number(number)))[0] === word : word in (data[Number(number)] || {});
    });
}

function ownersOf(field, data) {
    const owners = field ? listOf(datumOf(data, Number(field.replace(/\D+/, '')))) : [null];
    return field.startsWith('first') ? owners.slice(0, 1) : owners;
}

const joins = {AcDbLine: 'JoinLine', AcDbArc: 'JoinCircleArc', AcDbPolyline: 'JoinPolyLine'};

// The first polyline is joined with each of the others that can be, by an operation for its class.
function joinsOf(action) {
    if (action.kind !== 40 || datumOf(action.data, 0) !== '_JOIN') {
        return [];
    }
    const [first, ...others] = datumOf(action.data, 1);
    const classes = datumOf(action.data, 2);
    return others.map((handle, i) => ({name: joins[classes[i + 1]], isWhole: false, owner: first,
        handed: [{of: handle, value: {handle: handle}}]})).filter(one => one.name);
}
