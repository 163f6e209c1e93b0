// The drawing that a macro works on: what it asks for, what it makes, and what all of that holds in the end.

'use strict';

// Classes whose objects have a name by which they are found again.
const namedClasses = ['Layer', 'TextStyle', 'TableStyle', 'DimensionStyle', 'RichLineStyle', 'LineStyle', 'Group',
    'BlockDefinition', 'ModelNamedView', 'SheetNamedView', 'Sheet'];
// What only hands on what it is of: it is no part of its own.
const transparentClasses = new Set([...namedClasses, 'LayerManager', 'GeneralDimension', 'DimensionStyleUserData',
    'NamedView']);
// Behind these a polyline has other vertices than those that it was given.
const reshapingCalls = ['AddVertexAfter', 'DeleteVertex', 'Straighten', 'Split', 'Fit', 'Decurve', 'Spline'];
const reshapedPlaces = /^(Vertex|FitPoint|ControlPoint|Segment)/;
const countingCalls = {InsertRow: ['Rows()', 1], DeleteRow: ['Rows()', -1], InsertColumn: ['Columns()', 1],
    DeleteColumn: ['Columns()', -1]};

// A color as recordings have it.
function colorOfIndex(index) {
    return index === 256 ? 'bylayer' : index === 0 ? 'byblock' : {index: index};
}

// What a macro can ask. What belongs to an object, such as its settings, holds nothing itself: its `whole` does, under
// names behind its `place`.
class Thing {
    constructor(cls, of, place) {
        this.cls = cls;
        this.of = of; // what it was asked of, or null
        this.whole = of && place !== null ? of.whole : this;
        this.place = place || '';
        this.parts = new Map(); // by the question that gives them
        this.handle = ''; // of an object that was in the drawing already
        if (this.whole === this) {
            this.held = new Map(); // lists of values by the question that they answer
            this.before = new Map(); // of an object of the drawing what it held, or answered, in the beginning
            this.known = new Map(); // the same of what was not given to it
            this.name = ''; // the first one
            this.space = null; // the sheet where it was made, null in the model
            this.call = null; // that made it
            this.handedTo = ''; // the last operation that took it as what its result is made of
            this.isReshaped = false;
        }
    }
}

function flatten(values, into) {
    const flat = into || [];
    values.forEach(value => Array.isArray(value) ? flatten(value, flat) : flat.push(value));
    return flat;
}

// What stands in the parentheses of a question.
function shownIndexes(values) {
    return values.map(value => typeof value === 'string' ? JSON.stringify(value) : String(value)).join(',');
}

// state.txt: what the arguments of a call say of its result, and of setters how many tell which value is meant.
function readState(text) {
    const rows = new Map();
    for (const line of linesOf(text)) {
        const [call, ...fields] = line.split(/\s+/);
        rows.set(call, /^\d+$/.test(fields[0]) ? Number(fields[0]) : fields.map(field => {
            const [, name, sign, digits, ends] = /^([\w#-]+?)(?:([:*])(\d)|=([\w,]+))?$/.exec(field);
            return {name: name, isList: sign === '*', size: Number(digits || 1), ends: ends ? ends.split(',') : null};
        }));
    }
    return rows;
}

class Model {
    // What the drawing has already: `listed` are its objects, {handle, cls, name, answers}, `offered` those that a window
    // may meet, {handle, cls, type, number, curves}. `keyed` are the calls that are noted.
    constructor(known, state, keyed, offered, listed, attributeTags) {
        this.known = known;
        this.state = state;
        this.keyed = keyed;
        this.attributeTags = attributeTags;
        this.answers = []; // at the macro's prompts, as they were recorded
        this.lineOf = null; // tells the line of the macro that calls, where whoever runs it knows that
        this.calls = []; // {name, on, given}, in their order, with their line where `lineOf` tells it
        this.made = []; // things, as they were inserted
        this.named = []; // things that are found by their names, in the order of these
        this.records = new Map(); // the same by class and name
        this.forgotten = new Map(); // the last ones that had the name before
        this.found = new Map();
        this.selected = [];
        this.listed = new Map(listed.map(one => [one.handle, one]));
        this.handles = new Map(listed.filter(one => namedClasses.includes(one.cls) && one.name)
            .map(one => [one.cls + ' ' + one.name, one.handle]));
        this.offered = offered.map(one => Object.assign({thing: this.foundObject(one.handle)}, one));
        this.application = new Thing('Application', null, null);
    }

    // The drawing's object of that handle, of whatever class when nothing is known of it.
    foundObject(handle) {
        if (!this.found.has(handle)) {
            const {cls = 'FoundObject', name = '', answers = {}} = this.listed.get(handle) || {};
            if (this.handles.get(cls + ' ' + name) === handle) {
                return this.record(cls, name, false);
            }
            const thing = new Thing(cls, null, null);
            thing.handle = handle;
            this.found.set(handle, thing);
            for (const [question, values] of Object.entries(answers)) {
                thing.held.set(question, values);
                thing.before.set(question, values);
            }
        }
        return this.found.get(handle);
    }

    // A class whose only use is to hand on a named object.
    handedOn(type) {
        const cls = this.known.classes[type];
        const [property] = cls && !cls.base && !cls.operations.length ? cls.properties : [];
        return property && namedClasses.includes(property.type) ? property.type : type;
    }

    record(cls, name, creates) {
        const key = cls + ' ' + name;
        const isNameless = !name || name.startsWith('*') && /^(Group|BlockDefinition)$/.test(cls);
        if (!this.records.has(key) || isNameless && creates) {
            const thing = new Thing(cls, null, null);
            thing.name = name;
            thing.held.set('Name()', [name]);
            this.records.set(key, thing);
            this.named.push(thing);
            if (this.handles.has(key) && !this.found.has(this.handles.get(key))) {
                this.found.set(this.handles.get(key), thing);
            }
        }
        return this.records.get(key);
    }

    // Another one may have its name from here on.
    forget(thing) {
        const name = heldOf(thing, 'Name()', 0);
        if (this.records.get(thing.cls + ' ' + name) === thing) {
            this.records.delete(thing.cls + ' ' + name);
            this.forgotten.set(thing.cls + ' ' + name, thing);
        }
        return thing;
    }

    rename(thing, name) {
        this.forget(thing);
        this.records.set(thing.cls + ' ' + name, thing);
        thing.held.set('Name()', [name]);
    }

    // A value as it is held: colors, points and backgrounds by what they are now.
    valueOf(value) {
        if (!(value instanceof Thing)) {
            return value;
        }
        switch (value.cls) {
        case 'Color': return {color: value.held.get('Color')[0]};
        case 'MathPoint': return value.held.get('Point');
        case 'SolidBackground':
        case 'GradientBackground':
        case 'ImageBackground': return [value.cls].concat(value.held.get('Background()'));
        }
        return value.whole;
    }

    hold(thing, question, values) {
        const {whole, place} = thing;
        // Settings of its own are set as they are.
        if (values.some(value => value instanceof Thing && value.whole === whole)) {
            return;
        }
        if (!whole.isReshaped || !reshapedPlaces.test(place + question)) {
            whole.held.set(place + question, flatten(values.map(value => this.valueOf(value))));
        }
    }

    set(thing, call, given) {
        const name = call.replace(/^(Set|put_)/, '');
        const which = this.state.get(call) || 0;
        if (name === 'Name' && namedClasses.includes(thing.whole.cls)) {
            this.rename(thing.whole, given[0]);
        } else if (name === 'Erased' && namedClasses.includes(thing.whole.cls)) {
            this.forget(thing.whole).held.set('Erased()', [given[0]]);
        } else {
            // A viewport tells where a layer's setting counts, and is no value.
            const values = given.slice(which).filter(one => !(one instanceof Thing && one.cls === 'Viewport'));
            this.hold(thing, name + '(' + shownIndexes(given.slice(0, which)) + ')', values);
        }
    }

    tellInsertion(thing, fields, given) {
        const rest = given.slice();
        for (const {name, ends} of fields.filter(field => field.ends)) {
            thing.known.set(name + '()', () => {
                const points = ends.map(one => thing.held.get(one + '()'));
                return [0, 1, 2].map(axis => points.reduce((sum, point) => sum + (point[axis] || 0), 0) / points.length);
            });
        }
        for (const {name, isList, size} of fields.filter(field => !field.ends)) {
            const values = Array.isArray(rest[0]) || rest[0] === null ? rest.shift() || [] : rest.splice(0, size);
            for (let at = 0; isList && at < values.length; at += size) {
                const question = name.includes('#') ? name.replace('#', at / size + 1) + '()'
                    : name + '(' + at / size + ')';
                this.hold(thing, question, values.slice(at, at + size));
            }
            if (!isList && name !== '-') {
                this.hold(thing, name + '()', values);
            }
        }
    }

    // What an operation gives: its result and out parameters, as values and things. `types` are those of interface.txt.
    call(on, name, given, types) {
        const makes = /^(Insert|Create|Load)/.test(name);
        const noted = this.keyed.has(name) ? {name: name, on: on, given: this.argument(given)} : null;
        if (noted) {
            noted.line = this.lineOf ? this.lineOf() : null;
            this.calls.push(noted);
        }
        if (/^(Set|put_)/.test(name)) {
            this.change(on, name, given);
        } else {
            this.act(on, name, given, noted);
        }
        if (!types.length) {
            return [];
        }
        const question = makes ? '' : name.replace(/^(Get|get_)/, '') + '(' + shownIndexes(given) + ')';
        const known = makes ? [] : this.knownAnswers(on, name, question, given, types);
        const results = types.map((type, i) => i < known.length && known[i] !== undefined ? known[i]
            : this.answer(on, name, type, given, question));
        if (on.whole.handle && !on.whole.held.has(on.place + question)) {
            on.whole.before.set(on.place + question, results);
        }
        if (makes) {
            this.tellMade(results.find(one => one instanceof Thing), on, name, given, noted);
        }
        return results;
    }

    // Things by what they are now.
    argument(value) {
        return Array.isArray(value) ? value.map(one => this.argument(one)) : this.valueOf(value);
    }

    change(on, name, given) {
        if (name === 'SetRGBColor') {
            on.held.set('Color', [{rgb: given.slice()}]);
        } else if (/^SetBy/.test(name)) {
            this.hold(on, name.slice(3) + '()', given.length ? given : [true]);
        } else if (/^Set\w+Background$/.test(name)) {
            this.hold(on, 'Background()', given);
        } else {
            this.set(on, name, given);
        }
    }

    act(on, name, given, noted) {
        const [, removed] = /^Remove(Layer|Sheet|ModelNamedView|SheetNamedView)$/.exec(name) || [];
        if (removed) {
            const key = removed + ' ' + given[0];
            const thing = !this.records.has(key) && this.forgotten.get(key) || this.record(removed, given[0], false);
            this.forget(thing).held.set('Erased()', [true]);
        } else if (name === 'Rename') {
            this.rename(on.whole, given[0]);
        } else if (name === 'Activate' && [...namedClasses, 'Viewport'].includes(on.whole.cls)) {
            on.whole.held.set('Active()', [true]);
        } else if (name === 'CopySheet') {
            this.record('Sheet', given[1], true).call = noted || {name: name, on: on, given: given};
        } else if (reshapingCalls.includes(name)) {
            on.whole.isReshaped = true;
        } else if (name in countingCalls) {
            const [place, step] = countingCalls[name];
            on.whole.held.set(place, [(on.whole.held.get(place) || [0])[0] + step]);
        } else if (name === 'SelectByWindow') {
            const [one, other] = given.map(corner => corner.held && corner.held.get('Point'));
            this.selected = this.offered.filter(({curves}) => curves.some(curve => meetsWindow(curve, one, other)));
        } else if (name === 'ClearSelections') {
            this.selected = [];
        }
    }

    // The answers that are known, the result first.
    knownAnswers(on, name, question, given, types) {
        const selected = name === 'GetSelectedObject' ? this.selected[given[1]] : null;
        if (name.startsWith('PromptFor')) {
            return this.answerAt(name, types);
        }
        switch (name) {
        case 'GetSelectedObjectCount': return [this.selected.length];
        case 'GetSelectedObject':
            return selected ? [selected.thing, types[1] === 'int' ? selected.number : selected.type] : [];
        case 'GetObjectByHandle': return [this.foundObject(given[0])];
        case 'get_DispObj': return [on];
        case 'GetAttributeInstances': return [this.attributes(on)];
        }
        const middle = on.whole.known.get(on.place + question);
        const known = on.whole.held.get(on.place + question) || middle && middle() || [];
        return known.map(one => isColor(one) ? this.color(one.color) : one);
    }

    answerAt(prompt, types) {
        if (!this.answers.length) {
            throw new Error(prompt + ' asks more often than was answered when it was recorded');
        }
        return answerParts(this.answers.shift(), types);
    }

    attributes(block) {
        return this.attributeTags.map(tag => {
            const place = 'Attribute ' + tag + '.';
            if (!block.parts.has(place)) {
                block.parts.set(place, new Thing('AttributeInstance', block, place));
                block.whole.held.set(place + 'Name()', [tag]);
            }
            return block.parts.get(place);
        });
    }

    color(value) {
        const color = new Thing('Color', null, null);
        color.held.set('Color', [value]);
        return color;
    }

    answer(on, name, type, given, question) {
        if (type.endsWith('[]')) {
            // Two elements: a macro takes the second of a document's sheets.
            return [0, 1].map(i => this.answer(on, name, type.slice(0, -2), given, question + '[' + i + ']'));
        }
        if (type in this.known.enumerations) {
            return this.known.enumerations[type][0];
        }
        if (type === 'Color') {
            return this.color(name === 'GetRGBColor' ? {rgb: given.slice()}
                : given.length ? colorOfIndex(given[0]) : null);
        }
        const cls = type === 'object' ? 'FoundObject' : this.handedOn(type);
        if (!(cls in this.known.classes) && cls !== 'FoundObject') {
            return {double: 0, int: 0, long: 0, bool: false, string: ''}[type];
        }
        if (on.whole.cls === cls) {
            return on.whole;
        }
        if (namedClasses.includes(cls) && !question.endsWith(']')) {
            return this.record(cls, this.nameOf(name, given), name.startsWith('Create'));
        }
        return /^(Insert|Create|Split)/.test(name) ? new Thing(cls, null, null) : this.part(on, cls, question);
    }

    nameOf(name, given) {
        const row = this.state.get(name);
        const at = Array.isArray(row) ? row.findIndex(field => field.name === 'Name') : 0;
        return typeof given[at] === 'string' ? given[at] : '';
    }

    part(on, cls, question) {
        if (!on.parts.has(question)) {
            const isOfObject = on.whole.call !== null || on.whole.handle || on.whole.name;
            const step = transparentClasses.has(cls) ? '' : question.replace(/\(\)$/, '').replace(/^DimensionStyle/, '')
                + '.';
            on.parts.set(question, new Thing(cls, on, isOfObject ? on.place + step : null));
        }
        return on.parts.get(question);
    }

    tellMade(thing, on, name, given, noted) {
        for (const one of flatten(given)) {
            if (one instanceof Thing) {
                one.whole.handedTo = name;
            }
        }
        if (!thing) {
            return;
        }
        const row = this.state.get(name);
        thing.call = thing.call || noted || {name: name, on: on, given: given};
        if (thing.cls === 'MathPoint') {
            thing.held.set('Point', given.slice());
        } else if (/Background$/.test(thing.cls)) {
            this.hold(thing, 'Background()', given);
        } else if (Array.isArray(row)) {
            this.tellInsertion(thing, row, given);
        }
        if (/^Insert/.test(name)) {
            const owner = on.cls === 'SketchManager' ? on.of : on;
            // A sheet without a name is the model.
            thing.space = owner.whole.cls === 'Sheet' && owner.whole.name ? owner.whole : null;
            if (thing.cls === 'Viewport') {
                this.hold(thing, 'Sheet()', [thing.space ? heldOf(thing.space, 'Name()', 0) : '']);
            }
            this.made.push(thing);
        }
    }
}
