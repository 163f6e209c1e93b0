// Holds the drawing that a macro made against what was recorded.

'use strict';

// The numbers by which a table style's cells and lines are recorded.
const cellNumbers = Object.assign({iwTableCellType_Title: '1', iwTableCellType_Header: '2', iwTableCellType_Data: '3'},
    ...['HorizontalTop', 'HorizontalInside', 'HorizontalBottom', 'VerticalLeft', 'VerticalInside', 'VerticalRight'].map(
        (name, i) => ({['iwTableBordersLineType_' + name]: String(1 << i)})));
// What an object has of which nothing is recorded, besides zeros and empty texts: the host's own values.
const defaults = [['Circle', 'Radius()', 1], ['CircleArc', 'Radius()', 1], ['ReferenceImage', 'Scale()', 1],
    ['BlockInstance', 'Scales()', 1], ['SimpleNote', 'Height()', 2.5], ['AttributeDefinition', 'Height()', 0.2],
    ['EllipseArc', 'MinorRadius()', 1], ['AttributeDefinition', 'Justification()', 'iwTextJustification_Left'],
    ['RichLine', 'Justification()', 'iwRichLineJustification_Top'],
    ['Hatch', 'HatchPattern.HatchOrSolidData()', 'iwHatchPatternType_UserDefined'],
    ['EllipseArc', 'EndAngle()', 2 * Math.PI],
    ['OrdinateDimension', 'Measure()', 'iwOrdinateDimensionMeasure_UseYAxis']].concat(
        ...['Viewport', 'EmbeddedObject'].map(cls => [[cls, 'Color()', 'bylayer'], [cls, 'LineScale()', 1],
            [cls, 'LineWeight()', -1]]));
// What neither the records of an object tell nor the drawing's data: custom actions do, or another property.
const toldElsewhere = new RegExp('^(?:ClipBoundary|Active|RadialDiameterDimensionOptions.CenterMarkDisplay|RowHeightAt'
    + '|ColumnWidthAt|Sheet|InternalPoints|LoopCounts|BoundaryPoints|Path\\(\\)$|Attribute .*Name)');
// Of a block that another drawing holds.
const referenced = ['Name()', 'Rotation()'];
// An action makes them, also without a record.
const unrecordedClasses = ['Viewport', 'EmbeddedObject', 'Hatch'];

// Center and long axis from both ends of the axis, in the plane.
function deriveEllipse(held) {
    const [start, end] = [held.get('AxisStart()'), held.get('AxisEnd()')];
    if (start && end) {
        held.delete('AxisStart()');
        held.delete('AxisEnd()');
        if (!held.has('Center()')) {
            held.set('Center()', start.map((value, axis) => (value + end[axis]) / 2));
        }
        held.set('MajorAxis()', start.map((value, axis) => (value - end[axis]) / 2));
    }
}

// Position and width from the corners of its box.
function deriveNote(held) {
    const [first, second] = [held.get('FirstCorner()'), held.get('SecondCorner()')];
    if (!first || !second) {
        return;
    }
    held.delete('FirstCorner()');
    held.delete('SecondCorner()');
    const justified = String((held.get('Justify()') || [''])[0]);
    const shares = [justified.includes('Center') * 0.5 + justified.includes('Right'),
        justified.includes('Middle') * 0.5 + justified.includes('Bottom'), 0];
    if (!held.has('Position()')) {
        held.set('Position()', first.map((value, axis) => value + shares[axis] * (second[axis] - value)));
    }
    if (!held.has('Width()')) {
        held.set('Width()', [second[0] - first[0]]);
    }
    held.set('BoxHeight()', [first[1] - second[1]]);
}

// Sizes of the rows and columns that were not set one by one.
function deriveTable(held) {
    for (const [count, size, one] of [['Rows()', 'RowHeight()', 'RowHeightAt'],
        ['Columns()', 'ColumnWidth()', 'ColumnWidthAt']]) {
        const length = held.get(size);
        held.delete(size);
        for (let number = 0; length && number < held.get(count)[0]; ++number) {
            const question = one + '(' + number + ')';
            held.set(question, held.get(question) || length);
        }
    }
}

// Cells and lines by the numbers that they are recorded with.
function deriveTableStyle(held) {
    for (const [question, values] of [...held]) {
        held.delete(question);
        held.set(question.replace(/"(iwTable\w+)"/g, (_, name) => cellNumbers[name] || name), values);
    }
}

const derivations = {EllipseArc: deriveEllipse, Note: deriveNote, Table: deriveTable, TableStyle: deriveTableStyle};

// What an object has of which nothing was said.
function isNothing(value) {
    return value === 0 || value === '' || value === false || isColor(value) && value.color === null;
}

// `origins` lead the lines of the written macro to actions, and `writtenLine` those of the macro that ran to these.
class Comparison {
    constructor(recorded, model, origins, writtenLine, places) {
        this.recorded = recorded;
        this.model = model;
        this.origins = origins;
        this.writtenLine = writtenLine;
        this.places = places;
        this.madeClasses = new Set(places.interfaces.values());
        this.findings = [];
        this.equal = []; // expected objects
        this.unlike = new Map(); // the kind of what is found of things that are not as recorded
        this.matched = new Map(); // expected objects by their things
        this.things = new Map(); // and things by the expected
        for (const call of model.calls) {
            call.action = call.line ? origins.actionAt(writtenLine(call.line)) : '';
        }
        this.matchInserted();
        this.matchNamed();
        for (const thing of new Set([...model.made, ...model.named, ...model.found.values()])) {
            const derive = derivations[thing.cls] || (() => null);
            derive(thing.held);
            derive(thing.before);
        }
        this.compareObjects();
        this.compareCalls();
        this.tellStrange();
    }

    match(expected, thing) {
        this.matched.set(thing, expected);
        this.things.set(expected, thing);
    }

    // By the handles of the lines that make them. What is added to be part of a block is drawn where the block is, in the
    // same command.
    matchInserted() {
        this.matchBy(expected => [expected.handle], thing => this.rangeOf(thing).handles);
        this.matchBy(expected => [expected.action.line], thing => [this.rangeOf(thing).line]);
    }

    // The lines of the written macro that make a thing.
    rangeOf(thing) {
        const {line} = thing.call || {};
        return Object.assign({handles: []}, line ? this.origins.rangeAt(this.writtenLine(line)) : null);
    }

    // What has a key in common, and is of the same class, in its order.
    matchBy(keysOfExpected, keysOfThing) {
        const waiting = new Map();
        for (const expected of this.recorded.objects.filter(one => !this.things.has(one))) {
            for (const key of keysOfExpected(expected)) {
                addTo(waiting, key + ' ' + expected.made, expected);
            }
        }
        for (const thing of this.model.made.filter(one => !this.matched.has(one))) {
            const lists = keysOfThing(thing).map(key => waiting.get(key + ' ' + thing.cls) || []);
            const list = lists.find(one => one.length);
            if (list) {
                this.match(list.shift(), thing);
            }
        }
    }

    // By what makes them, or by their first names.
    matchNamed() {
        const byName = new Map();
        for (const thing of this.model.named) {
            const key = thing.cls + ' ' + (thing.name && thing.name !== '*U' ? thing.name
                : thing.call ? thing.call.action : '');
            addTo(byName, key, thing);
        }
        for (const expected of this.recorded.records) {
            const key = expected.made + ' ' + (expected.name && expected.name !== '*U' ? expected.name
                : expected.action.key);
            const things = byName.get(key) || [];
            if (things.length) {
                this.match(expected, things.length > 1 ? things.shift() : things[0]);
            }
        }
    }

    // What is drawn, objects by the handles that they have in the recording.
    shown(value) {
        const expected = value instanceof Thing ? this.matched.get(value) : null;
        return expected && expected.handle || shownValue(value);
    }

    find(kind, expected, action, what, recorded, drawn, reason) {
        const line = action ? action.line : null;
        this.findings.push({kind: kind, class: expected ? expected.cls || expected.made : '',
            handle: expected ? expected.handle : '', line: line, path: action ? action.path : '',
            macroLines: action ? this.origins.linesOf(action.key) : null, what: what,
            recorded: shownValue(recorded), drawn: this.shown(drawn), reason: reason});
    }

    differ(thing, ...found) {
        this.find('different', ...found);
        this.unlike.set(thing, 'different');
    }

    compareObjects() {
        for (const expected of [...this.recorded.objects, ...this.recorded.records]) {
            const thing = this.things.get(expected);
            // A macro makes a text style only when there is none.
            const isMade = thing && (expected.name === null || expected.isFound || thing.call
                || expected.made === 'TextStyle');
            if (isMade) {
                this.compareObject(expected, thing);
            } else if (expected.name !== '' && !(expected.isFound && expected.held.size <= 1)) {
                this.find('missing', expected, expected.action, '', null, null, 'the macro does not make it');
            }
        }
        for (const expected of this.recorded.found) {
            this.compareObject(expected, this.model.foundObject(expected.handle));
        }
        const changed = new Set(this.recorded.found.map(expected => expected.handle));
        for (const [handle, thing] of this.model.found) {
            if (!changed.has(handle) && thing.handle) {
                this.compareHeld(new Expected(handle, thing.cls, thing.cls, {key: ''}), thing);
            }
        }
        for (const thing of this.model.made) {
            if (!this.matched.has(thing) && !this.isHelper(thing)) {
                this.findSurplus(thing, 'nothing like it is recorded there');
            }
        }
        for (const thing of this.model.named) {
            // A block without a name is of the insertion that it is drawn for.
            if (!this.matched.has(thing) && thing.call && !this.rangeOf(thing).line) {
                this.findSurplus(thing, 'nothing like it is recorded');
            } else if (!this.matched.has(thing) && !thing.name.startsWith('*')) {
                const looked = new Expected('', thing.cls, thing.cls, {key: ''});
                looked.hold('Name()', 0, thing.name, 'Name', null);
                this.compareHeld(looked, thing);
            }
        }
    }

    // Drawn for another object, or for the time being.
    isHelper(thing) {
        const isKept = /Dimension/.test(thing.handedTo); // what it measures is there for the time being alone
        return thing.handedTo !== '' && !isKept || heldOf(thing, 'Erased()', 0) === true
            || !this.madeClasses.has(thing.cls)
            || unrecordedClasses.includes(thing.cls) && this.rangeOf(thing).line !== undefined;
    }

    findSurplus(thing, reason) {
        const {line} = thing.call;
        this.findings.push({kind: 'surplus', class: thing.cls, handle: '', line: null, path: '',
            macroLines: line ? [line, line] : null, what: '', recorded: null, drawn: null, reason: reason});
        this.unlike.set(thing, 'surplus');
    }

    compareObject(expected, thing) {
        const before = this.findings.length;
        const space = expected.space ? this.things.get(expected.space) || null : expected.space;
        if (space !== undefined && space !== thing.space) {
            this.differ(thing, expected, expected.action, 'space', expected.space ? expected.space.name : 'Model',
                thing.space ? thing.space.name : 'Model', 'it is drawn in another space');
        }
        this.compareHeld(expected, thing);
        if (this.findings.length === before && (!expected.isFound || expected.name !== null || expected.held.size)) {
            this.equal.push(expected);
        }
    }

    compareHeld(expected, thing) {
        const {cls} = thing;
        const isReferenced = cls === 'BlockInstance' && thing.held.has('Path()');
        for (const {question, index, value, tag, action} of expected.held.values()) {
            if (isReferenced && referenced.includes(question)) {
                continue;
            }
            const [, part, of] = /^(Line[12]|Curve)\.(.*)/.exec(question) || [];
            const measured = part ? heldOf(thing, part + '()', 0) : null;
            const isThere = measured && (this.matched.has(measured) || measured.handle);
            const seen = measured ? heldOf(measured, of, index) : heldOf(thing, question, index);
            // What a dimension measures may be there already.
            const isRight = isThere || (seen === undefined
                ? value === anything || !expected.isFound && (isNothing(value)
                    || this.isDefault(cls, question, value) || this.places.optional.has(cls + ' ' + question))
                : value !== null && value !== undefined && value.handle ? this.isHanded(seen, value)
                    : fits(question, seen, value, this.places.turns.has(question + index)));
            if (!isRight) {
                this.differ(thing, expected, action, tag, value, seen, 'it is drawn with another value');
            }
        }
        for (const [question, values] of thing.held) {
            // What the drawing has of an object is not recorded.
            const before = thing.before.get(question) || [];
            values.forEach((value, index) => {
                if (value !== before[index] && !expected.holds(question, index)
                    && !expected.excused.has(question.split('(')[0]) && !isNothing(value)
                    && (question === 'Objects()' || !(value instanceof Thing))
                    && !this.isDefault(cls, question, value) && !toldElsewhere.test(question)
                    && !(index === 1 && question.endsWith('InViewport()'))) {
                    this.differ(thing, expected, expected.action.key ? expected.action : null,
                        question.replace(/\(\)$/, ''), null, value, 'nothing is recorded of it');
                }
            });
        }
    }

    isDefault(cls, question, value) {
        const plainValue = value instanceof Choice ? value.number : isColor(value) ? value.color : value;
        return defaults.some(one => one[0] === cls && one[1] === question && one[2] === plainValue);
    }

    // The calls of each action, one after the other.
    compareCalls() {
        const wanted = new Map();
        for (const one of this.recorded.operations) {
            addTo(wanted, one.action.key, one);
        }
        const seen = new Map();
        for (const call of this.model.calls) {
            if (this.recorded.calls.names.has(call.name) && (wanted.has(call.action) || !call.name.startsWith('Set'))) {
                addTo(seen, call.action, call);
            }
        }
        for (const key of new Set([...wanted.keys(), ...seen.keys()])) {
            const [ours, theirs] = [wanted.get(key) || [], seen.get(key) || []];
            for (let i = 0; i < Math.max(ours.length, theirs.length); ++i) {
                this.compareCall(ours[i], theirs[i]);
            }
        }
    }

    compareCall(wanted, seen) {
        const action = wanted ? wanted.action : null;
        const handed = wanted ? [].concat(wanted.owner ? [{handle: wanted.owner}] : [],
            wanted.handed.map(one => one.value)) : [];
        if (!seen) {
            this.find('missing', null, action, wanted.name, handed.map(one => one && one.handle || one), null,
                'the macro does not call it');
        } else if (!wanted) {
            this.findSurplus({cls: seen.name, call: seen}, 'no such call is recorded there');
        } else {
            const given = (wanted.owner ? [seen.on.whole] : []).concat(flatten(seen.given));
            const isSame = wanted.name === seen.name && given.length === handed.length
                && given.every((one, i) => this.isHanded(one, handed[i]));
            if (isSame && wanted.isWhole) {
                return;
            }
            this.find(isSame ? 'notChecked' : 'different', null, action, seen.name,
                handed.map(one => one && one.handle || one), given.map(one => this.shown(one)),
                isSame ? 'the application makes it of what it is handed, which is as recorded'
                    : 'it is handed something else');
        }
    }

    isHanded(value, wanted) {
        if (wanted === null || typeof wanted !== 'object' || !wanted.handle) {
            return wanted === null || fits('', value, wanted, false);
        }
        if (!(value instanceof Thing)) {
            return false;
        }
        if (value.call && !this.madeClasses.has(value.cls)) {
            return this.rangeOf(value).handles.includes(wanted.handle);
        }
        const {handle} = this.matched.get(value) || value;
        return handle ? [wanted.handle, this.recorded.leaders.get(wanted.handle)].includes(handle)
            : this.isDrawnOf(value, wanted.handle);
    }

    // Whether something that is drawn for a block is what the drawing has under the handle, as far as it can be asked.
    isDrawnOf(thing, handle) {
        const record = this.recorded.drawing.get(handle);
        if (!record || thing.cls !== this.places.interfaces.get(record.class)) {
            return false;
        }
        return Object.entries(answersOf(record)).every(([question, values]) => values.every((value, index) => {
            const seen = heldOf(thing, question, index);
            return seen === undefined || isClose(seen, value, /Angle/.test(question));
        }));
    }

    tellStrange() {
        for (const {cls, tag, action} of this.recorded.strange) {
            this.findings.push({kind: 'notChecked', class: cls, handle: '', line: action.line, path: action.path,
                macroLines: null, what: tag, recorded: null, drawn: null, reason: 'it is not known where it stands'});
        }
    }
}
