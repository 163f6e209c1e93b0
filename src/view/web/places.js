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

    addRow(cls, tag, text) {
        const isOptional = text.endsWith('?');
        const [name, ...words] = text.replace(/\?$/, '').split(' ');
        const [, question, points] = /^(.*?)(?:\[(\d)\])?$/.exec(name);
        const number = words.find(word => /^\d+$/.test(word));
        if (isOptional) {
            this.optional.add(this.interfaces.get(cls) + ' ' + question + '()');
        }
        if (words.includes('turn')) {
            this.turns.add(question + '()' + Number(number || 0));
        }
        const row = {name: question, points: Number(points || 0), index: Number(number || 0),
            words: words.filter(word => word !== number)};
        if (!tag.includes('*')) {
            this.rows.set(cls + ' ' + tag, row);
            return;
        }
        [...'XYZ'].forEach((letter, axis) => {
            for (const one of [letter, letter.toLowerCase()]) {
                this.rows.set(cls + ' ' + tag.replace('*', one), Object.assign({}, row, {index: axis}));
            }
        });
    }

    // Null where there is none; its name is "-" where no macro carries the property.
    row(cls, tag) {
        const numbers = tag.match(/(?<=_)\d+/g) || [];
        const common = cls.includes('Dimension') ? ['dimension', 'every'] : ['every'];
        const keys = [cls + ' ' + tag.replace(/(?<=_)\d+/g, '#'), ...common.map(one => one + ' ' + tag)];
        const key = keys.find(one => this.rows.has(one));
        if (key === undefined) {
            return null;
        }
        const row = this.rows.get(key);
        const name = numbers.reduce((text, number) => text.replace('#', number), row.name);
        return numbers.length ? Object.assign({}, row, {name: name}) : row;
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
    let ends = isHandle ? values : owners ? datumOf(data, Number(owners)) : [];
    if (isLength) {
        return values.map((_, i) => ({of: ends[i] || null, value: null}));
    }
    values = values.map(one => isHandle ? {handle: one} : one);
    const parts = [].concat(...values.map((one, i) => listOf(one).map(value => ({of: ends[i] || null, value: value}))));
    return span ? parts.slice(...span.split('-').map(Number)) : parts;
}

class Calls {
    constructor(text) {
        this.rows = linesOf(text).map(line => {
            const [head, handed] = line.split(' =');
            const words = head.split(' ');
            return {kind: Number(words[0]), conditions: words.slice(1, -1), name: words[words.length - 1],
                fields: handed.split(' ').filter(one => one)};
        });
        this.names = new Set(this.rows.map(row => row.name).concat(['JoinLine', 'JoinCircleArc', 'JoinPolyLine']));
    }

    // Those that an action makes: {name, owner, handed}. What it hands over is of objects, which may be lost.
    of(action) {
        const found = [];
        for (const row of this.rows.filter(one => one.kind === action.kind && isMet(one.conditions, action.data))) {
            const severals = row.fields.includes('*') ? action.data.map((_, i) => i).slice(2) : [0];
            const [owners, ...fields] = /^(on|first)/.test(row.fields[0] || '') ? row.fields : ['', ...row.fields];
            for (const several of severals) {
                const handed = [].concat(...fields.map(field => handedBy(field.replace('each', ''), action.data, several)));
                const each = fields.includes('each0') ? handed.map(one => [one]) : [handed];
                for (const owner of ownersOf(owners, action.data)) {
                    found.push(...each.map(one => ({name: row.name, owner: owner, handed: one})));
                }
            }
        }
        return found.concat(joinsOf(action));
    }
}

function isMet(conditions, data) {
    return conditions.every(one => {
        const [, number, sign, word] = /^(\d*)([#=:])(.*)$/.exec(one);
        return sign === '#' ? data.length === Number(word)
            : sign === '=' ? datumOf(data, Number(number)) === word : word in (data[Number(number)] || {});
    });
}

function ownersOf(field, data) {
    const owners = field ? listOf(datumOf(data, Number(field.replace(/\D+/, '')))) : [null];
    return field.startsWith('first') ? owners.slice(0, 1) : owners;
}

// The first polyline is joined with each of the others that can be, by an operation for its class.
function joinsOf(action) {
    const joins = {AcDbLine: 'JoinLine', AcDbArc: 'JoinCircleArc', AcDbPolyline: 'JoinPolyLine'};
    if (action.kind !== 40 || datumOf(action.data, 0) !== '_JOIN') {
        return [];
    }
    const [first, ...others] = datumOf(action.data, 1);
    const classes = datumOf(action.data, 2);
    return others.map((handle, i) => ({name: joins[classes[i + 1]], owner: first,
        handed: [{of: handle, value: {handle: handle}}]})).filter(one => one.name);
}
