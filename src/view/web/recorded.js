// What a recording says of its drawing: which objects there are in the end and what they hold, where the recording tells
// it, and which calls the application has to be handed.

'use strict';

// Custom actions by their numbers. One that is refused ends its command.
const kinds = {trim: 6, sheet: 13, namedView: 14, pen: 16, erase: 17, hatch: 18, attribute: 39, viewBackground: 41,
    printStyle: 47};
// Taken away by their names, where others are erased by their handles.
const removedClasses = ['AcDbLayerTableRecord', 'AcDbViewTableRecord'];
const refusedKinds = [24, 25, 51, 52, 53, 54];
const lastKind = 55;
const yesWords = ['Yes', 'YES', 'Visible', 'Enabled'];
// What a leader's note is told comes from the drawing.
const annotationFields = {textHeight: 'TextHeight', width: 'Width', rotation: 'Rotation', lineSpacingFactor:
    'LineSpaceFactor', backgroundFillOn: 'BackgroundMask', backgroundScaleFactor: 'BackgroundBorderOffsetFactor'};
// How a number of the record becomes the one that the object holds.
const measures = {half: value => value / 2, round: value => value / (2 * Math.PI),
    area: value => Math.sqrt(value / Math.PI), abs: Math.abs};
const vertexStates = 1e-10; // a smaller bulge is straight

// Recorded of a block without a name: the host numbers it when it is made.
function withoutNumber(name) {
    return name.replace(/^\*U\d+$/, '*U');
}

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

// Whether the word of a record says yes.
function isYes(value) {
    return yesWords.includes(value instanceof Choice ? value.shown() : value);
}

// The actions of a recording in their order, each with its line (from 1) and its path, as reports name them; `key` is
// what reports and maps have in common. `lines` are the parsed lines, null for empty ones.
function actionsOf(lines) {
    const actions = [];
    lines.forEach((line, index) => {
        const isCommand = line && line.command;
        for (const [i, action] of (isCommand ? line.command.actions : [line]).entries()) {
            if (!action || 'recording' in action || 'drawing' in action || 'object' in action) {
                continue;
            }
            const kind = action.custom ? action.custom.kind : 0;
            if ('command' in action || isCommand && 'null' in action || refusedKinds.includes(kind) || kind > lastKind) {
                break;
            }
            const path = isCommand ? 'command.actions[' + i + ']' : '';
            actions.push({key: actionKey(index + 1, path), line: index + 1, path: path, action: action});
        }
    });
    return actions;
}

function noneTold() {
    return {whole: false, objects: new Set(), inBlock: new Set(), properties: new Map()};
}

// What the report tells that a macro does not do, by the actions: all of one, objects, objects that a block lacks, and
// properties by their tags, each with the handles of the objects.
class Told {
    constructor(losses) {
        this.byAction = new Map();
        for (const loss of losses) {
            const key = actionKey(loss.line, loss.path);
            if (!this.byAction.has(key)) {
                this.byAction.set(key, noneTold());
            }
            const told = this.byAction.get(key);
            const [, tag, handle, block] = /^(?:property "(.*)" of )?(?:AcDb\w+|object) ([0-9A-F]+)( in block .*)?$/
                .exec(loss.what) || [];
            if (block !== undefined) {
                told.inBlock.add(handle);
            } else if (tag !== undefined) {
                told.properties.set(tag, [...told.properties.get(tag) || [], handle]);
            } else if (handle !== undefined) {
                told.objects.add(handle);
            } else if (loss.what.startsWith('custom ') || loss.what.startsWith('changes of ')) {
                told.whole = true;
            }
        }
    }

    of(key) {
        return this.byAction.get(key) || noneTold();
    }
}

// An object as it should be: `held` has what it holds, {question, index, value, tag, action}, by question and index.
class Expected {
    constructor(handle, cls, made, action) {
        this.handle = handle;
        this.cls = cls; // the drawing's
        this.made = made; // the interface's
        this.action = action; // that adds it, or names it first
        this.held = new Map();
        this.name = null; // the first one of what is found by its name
        this.space = null; // the sheet's name, empty in the model
        this.isFound = false; // in the drawing, and not made by the macro
        this.isReshaped = false;
    }

    hold(question, index, value, tag, action) {
        if (!this.isReshaped || !reshapedPlaces.test(question)) {
            this.held.set(question + '|' + index, {question: question, index: index, value: value, tag: tag,
                action: action});
        }
    }

    holds(question, index) {
        return this.held.has(question + '|' + index);
    }

    value(question, index) {
        const one = this.held.get(question + '|' + index);
        return one && one.value;
    }
}

class Recorded {
    constructor(lines, places, calls, told) {
        this.places = places;
        this.calls = calls;
        this.told = told;
        const records = lines.filter(line => line && line.object).map(line => line.object);
        this.drawing = new Map(records.map(one => [one.handle, one]));
        // A leader brings its note with it.
        this.leaders = new Map(records.filter(one => one.class === 'AcDbMText' && one.reactors && one.reactors.length)
            .map(one => [one.handle, one.reactors[0]]));
        const header = lines.find(line => line && line.recording);
        const sheet = header && header.recording.sheet || {name: '', model: true};
        this.space = sheet.model === false ? sheet.name || '' : '';
        this.pattern = null; // of the next hatch; empty when that is not inserted
        this.objects = []; // Expected, inserted ones in their order
        this.records = []; // Expected that are found by their names
        this.byHandle = new Map();
        this.operations = []; // {name, owner, handed, action}
        this.strange = []; // tags without a row
        for (const one of actionsOf(lines)) {
            for (const kind of ['added', 'modified', 'property', 'custom'].filter(name => name in one.action)) {
                this[kind](one.action[kind], one);
            }
        }
    }

    nameOf(handle) {
        const record = this.drawing.get(handle);
        return record && (record.name || record.layoutName) || '';
    }

    // The interface's class of an object of the drawing, which a macro draws anew where it needs it.
    madeOf(handle) {
        const record = this.drawing.get(handle);
        return record ? this.places.interfaces.get(record.class) : undefined;
    }

    // A record that is named: made by the action, or found.
    named(made, name, handle, cls, action) {
        const one = new Expected(handle, cls, made, action);
        one.name = withoutNumber(name);
        if (name) {
            one.hold('Name()', 0, one.name, 'Name', action);
        }
        this.records.push(one);
        if (handle) {
            this.byHandle.set(handle, one);
        }
        return one;
    }

    found(made, name, handle, cls, action) {
        const one = this.named(made, name, handle, cls, action);
        one.isFound = true;
        return one;
    }

    // What the macro changes without having made it, by its name.
    find(handle, cls, name, action) {
        const row = this.places.records.get(cls) || {};
        const made = cls !== 'AcDbViewTableRecord' ? row.made
            : (this.drawing.get(handle) || {}).isPaperspaceView ? 'SheetNamedView' : 'ModelNamedView';
        if (made && name && !this.byHandle.has(handle)) {
            this.found(made, name, handle, cls, action);
        }
    }

    // The one that has the name now.
    recordOf(made, name, action) {
        const found = this.records.filter(one => one.made === made && one.value('Name()', 0) === name).pop();
        return found || this.found(made, name, '', '', action);
    }

    added(record, action) {
        const {handle} = record;
        const told = this.told.of(action.key);
        if (this.leaders.has(handle) || told.objects.has(handle)) {
            return;
        }
        const kept = Object.assign({}, record, {properties: record.properties.filter(one =>
            !told.properties.has(one.tag))});
        const row = this.places.records.get(record.class);
        const made = this.places.interfaces.get(record.class);
        if (row) {
            const named = record.properties.find(one => one.tag === row.tag);
            this.named(row.made, this.value(named ? named.value : this.nameOf(handle)), handle, record.class, action);
            this.addDrawn(record, action);
            this.modified(kept, action);
        } else if (record.class === 'AcDbHatch' && this.pattern && !this.pattern.length) {
            this.pattern = null;
        } else if (made) {
            this.inserted(new Expected(handle, record.class, made, action));
            this.addDrawn(record, action);
            this.modified(kept, action);
            this.align(this.byHandle.get(handle));
        }
    }

    inserted(one) {
        one.space = this.space;
        this.objects.push(one);
        this.byHandle.set(one.handle, one);
    }

    // What the drawing tells of an added object beside its record.
    addDrawn({handle}, action) {
        const one = this.byHandle.get(handle);
        const drawn = this.drawing.get(handle) || {};
        for (const [note, leader] of this.leaders) {
            for (const [field, place] of leader === handle ? Object.entries(annotationFields) : []) {
                const value = this.drawing.get(note)[field];
                if (value !== undefined) {
                    one.hold('NoteAnnotation.' + place + '()', 0, value, 'note', action);
                }
            }
        }
        if (one.cls === 'AcDbHatch') {
            (this.pattern || []).forEach(part => one.hold(...part));
            this.pattern = null;
        }
        if (one.cls === 'AcDbBlockTableRecord') {
            (drawn.origin || [0, 0, 0]).forEach((value, axis) => one.hold('Position()', axis, value, 'origin', action));
        }
        if (one.cls === 'AcDbMlineStyle' && drawn.elements && !this.told.of(action.key).properties.has('elements')) {
            linesOfStyle(handle, drawn.elements, style => this.nameOf(style)).forEach(call =>
                this.operations.push(Object.assign({action: action}, call)));
        }
        if (drawn.thickness !== undefined) {
            one.hold('Thickness()', 0, drawn.thickness, 'Thickness', action);
        }
    }

    // An attribute definition is inserted at the point by which its text is aligned.
    align(one) {
        if (one.cls !== 'AcDbAttributeDefinition') {
            return;
        }
        const justified = one.value('Justification()', 0);
        const isAligned = justified !== undefined && String(justified instanceof Choice ? justified.shown() : justified)
            !== 'Left';
        for (let axis = 0; axis < 3; ++axis) {
            const key = 'AlignmentPoint()|' + axis;
            const point = one.held.get(key);
            one.held.delete(key);
            if (isAligned) {
                one.hold('Position()', axis, point ? point.value : 0, point ? point.tag : 'Text alignment', one.action);
            }
        }
    }

    modified(record, action) {
        const told = this.told.of(action.key);
        if (told.whole) {
            return;
        }
        const sheet = record.properties.find(one => one.tag === 'SheetName_PrintStyleTable');
        this.find(record.handle, record.class, sheet ? sheet.value : this.nameOf(record.handle), action);
        // A picture has a yes or no of its own under the name of the transparency, and that alone may be told.
        const isTold = ({tag, value}) => told.properties.has(tag) && !(record.class === 'AcDbRasterImage'
            && value !== null && typeof value === 'object' && value.transparency);
        // Of two records of one property the first counts.
        const seen = new Set();
        for (const one of record.properties) {
            if (!seen.has(one.tag) && !isTold(one)) {
                this.set(record.handle, one, action);
            }
            seen.add(one.tag);
        }
    }

    property(record, action) {
        const told = this.told.of(action.key);
        if (!told.whole && !told.properties.has(record.tag)) {
            this.set(record.handle, record, action);
        }
    }

    set(handle, record, action) {
        const {tag, index} = record;
        const leader = tag === 'Layer' ? this.leaders.get(handle) : undefined;
        const one = this.byHandle.get(leader || handle);
        if (!one) {
            return;
        }
        const row = this.places.row(one.cls, leader ? 'NoteLayer' : tag);
        if (!row) {
            this.strange.push({cls: one.cls, tag: tag, action: action});
        } else if (row.name === 'Objects') {
            this.setObjects(one, record.value, action);
        } else if (row.points) {
            this.setPoints(one, row, record.value, tag, action);
        } else if (row.name !== '-' && (tag !== 'Erased' && tag !== 'ActivateLayer' || isYes(record.value))) {
            this.setValue(one, row, record.value, index, tag, action);
        }
    }

    setValue(one, row, recorded, index, tag, action) {
        let {name} = row;
        let value = this.value(recorded);
        const word = row.words.indexOf('is');
        if (word >= 0) {
            value = isYes(value) ? row.words[word + 1] : null;
        }
        if (row.words.includes('affixes') && typeof value === 'string' && value.includes('<>')) {
            const [before, ...behind] = value.split('<>');
            one.hold(name.replace('Prefix', 'Suffix') + '()', 0, behind.join('<>'), tag, action);
            value = before;
        }
        const number = index && typeof index === 'object' ? index.int : undefined;
        const isBeyond = number !== undefined && !(number >= 0 && number < (name.includes('#') ? 4 : Infinity));
        if (value === null || value === undefined || isBeyond || row.words.includes('affix') && value === '<>') {
            return;
        }
        for (const measure of row.words.filter(one => one in measures)) {
            value = measures[measure](value);
        }
        if (name === 'Transparency' && recorded !== null && typeof recorded === 'object' && recorded.transparency) {
            name += ['.ByLayer', '.ByBlock', '.ByAlpha'][recorded.transparency.method];
        }
        let which = number === undefined ? '' : String(number);
        if (index && typeof index === 'object' && index.element) {
            which = index.element.tag.int + ',' + index.element.value.int;
        }
        one.hold(questionOf(name, which), row.index, value, tag, action);
    }

    setObjects(one, recorded, action) {
        const {inBlock} = this.told.of(action.key);
        const handles = recorded.collection.elements.map(element => element.value).filter(handle => !inBlock.has(handle));
        [...one.held.keys()].filter(key => key.startsWith('Objects()')).forEach(key => one.held.delete(key));
        handles.forEach((handle, index) => one.hold('Objects()', index, {handle: handle}, 'Objects', action));
    }

    // A collection that is none says nothing.
    setPoints(one, row, recorded, tag, action) {
        const holdPoint = (question, point) => point.slice(0, row.points).forEach((coordinate, axis) =>
            one.hold(question, axis, coordinate, tag, action));
        if (recorded === null || typeof recorded !== 'object') {
            return;
        }
        if (recorded.point) {
            holdPoint(row.name + '()', recorded.point);
        }
        (recorded.collection ? recorded.collection.elements : []).forEach((element, number) =>
            holdPoint(questionOf(row.name, String(number)), element.value && element.value.point || []));
    }

    value(recorded) {
        if (recorded === null || typeof recorded !== 'object') {
            return typeof recorded === 'string' ? withoutNumber(recorded) : recorded;
        }
        const [form, held] = Object.entries(recorded)[0];
        switch (form) {
        case 'id': return this.nameOf(held) || undefined;
        case 'int': return new Choice(held, '');
        case 'transparency': return [true, true, Math.round((255 - held.alpha) / 2.55)][held.method];
        case 'element': {
            const number = held.tag !== null && typeof held.tag === 'object' ? held.tag.int : undefined;
            return new Choice(number, this.value(held.value));
        }
        case 'collection': {
            const chosen = held.elements[held.chosen || 0];
            return chosen ? this.value({element: chosen}) : undefined;
        }
        case 'color': return {color: held};
        }
        return held;
    }

    custom(record, action) {
        const {kind, data} = record;
        const told = this.told.of(action.key);
        if (told.whole) {
            this.pattern = kind === kinds.hatch ? [] : this.pattern;
            return;
        }
        for (const call of this.calls.of(record)) {
            const isKept = part => !(part.of && told.objects.has(part.of)) && !(part.value !== null
                && part.value.handle && told.objects.has(part.value.handle));
            if (!(call.owner && told.objects.has(call.owner))) {
                this.operations.push(Object.assign({action: action}, call, {handed: call.handed.filter(isKept)}));
            }
        }
        const values = data.map((_, number) => datumOf(data, number));
        switch (kind) {
        case kinds.pen: this.draw(values, action); break;
        case kinds.hatch: this.hatch(values, action); break;
        case kinds.erase: this.erase(values[0], values[1], action); break;
        case kinds.trim: this.trim(values[5], values[6]); break;
        case kinds.sheet: this.sheet(values, action); break;
        case kinds.viewBackground: this.viewBackground(values, action); break;
        case kinds.namedView: this.namedView(values, action); break;
        case kinds.attribute: this.hold(values[0], 'Attribute ' + values[2] + '.Value()', values[3], values[2], action); break;
        case kinds.printStyle: this.printStyle(values, action); break;
        case 40: this.reshape(values[1] instanceof Array ? values[1][0] : values[1], values, action); break;
        case 42: this.reshape(values[0], values, action); break;
        }
    }

    hold(handle, question, value, tag, action) {
        const one = this.byHandle.get(handle);
        if (one) {
            one.hold(question, 0, value, tag, action);
        }
    }

    draw([points, bulges, closed, handle, cls, starts, ends, hasOneWidth, width], action) {
        const vertices = points.map(point => ({value: {point: point}}));
        this.added({class: cls, handle: handle, properties: [{tag: 'Vertex', value: {collection: {elements: vertices}}}]},
            action);
        const one = this.byHandle.get(handle);
        if (!one || one.action !== action) {
            return;
        }
        one.hold('Closed()', 0, closed, 'closed', action);
        bulges.forEach(([bulge], i) => {
            if (Math.abs(bulge) > vertexStates) {
                one.hold('SegmentAngle(' + i + ')', 0, 4 * Math.atan(bulge), 'bulge', action);
            }
        });
        starts.forEach((value, i) => one.hold('SegmentStartWidth(' + i + ')', 0, value, 'start width', action));
        ends.forEach((value, i) => one.hold('SegmentEndWidth(' + i + ')', 0, value, 'end width', action));
        if (hasOneWidth) {
            one.hold('GlobalWidth()', 0, width, 'width', action);
        }
    }

    // Stands in front of its hatch, or behind it.
    hatch([name, scale, angle, byPoints, byEntities, byBulges, hasGradient, ...rest], action) {
        const pattern = [['PatternName()', 0, name, 'pattern', action], ['PatternScale()', 0, scale, 'scale', action],
            ['PatternAngle()', 0, angle, 'angle', action]];
        if (hasGradient) {
            rest.slice(-4).forEach((one, index) => pattern.push(['HatchPattern.GradientData()', index,
                index < 2 ? {color: one} : one, 'gradient', action]));
        }
        const hasBoundary = byPoints || byEntities || byBulges || rest[0] && rest[0].length;
        this.pattern = hasBoundary ? pattern : [];
        const last = this.objects[this.objects.length - 1];
        if (last && last.cls === 'AcDbHatch' && !last.holds('PatternName()', 0)) {
            this.pattern.forEach(part => last.hold(...part));
            this.pattern = null;
        }
    }

    erase(handles, classes, action) {
        const told = this.told.of(action.key);
        const kept = told.properties.get('Erased') || [];
        for (const [i, handle] of handles.entries()) {
            const leader = this.leaders.get(handle);
            if (!told.objects.has(handle) && !kept.includes(handle)) {
                if (removedClasses.includes(classes[i])) {
                    this.find(handle, classes[i], this.nameOf(handle), action);
                }
                this.hold(leader || handle, leader ? 'NoteAnnotation.Erased()' : 'Erased()', true, 'Erased', action);
            }
        }
    }

    // What a trim makes another class is another object from here on.
    trim(handles, classes) {
        (handles || []).forEach((handle, i) => {
            const one = this.byHandle.get(handle);
            if (one && one.cls !== classes[i]) {
                this.byHandle.delete(handle);
            }
        });
    }

    sheet(values, action) {
        const [word, name, copy, third] = values;
        if (values.length === 1) {
            this.space = word === 'Model' ? '' : word;
        } else if (word === 'New') {
            this.recordOf('Sheet', name, action);
        } else if (word === 'Copy') {
            this.recordOf('Sheet', copy === undefined ? name : copy, action);
        } else if (word === 'Delete') {
            this.recordOf('Sheet', name, action).hold('Erased()', 0, true, 'Erased', action);
        } else if (values.length === 4) {
            this.recordOf('Sheet', third, action);
        } else {
            this.recordOf('Sheet', word, action).hold('Name()', 0, name, 'Name', action);
        }
    }

    viewBackground([handle, cls, isNew, onSheet, sheet, name, kind, ...rest], action) {
        const made = onSheet ? 'SheetNamedView' : 'ModelNamedView';
        const view = isNew ? this.named(made, name, handle, cls, action) : this.byHandle.get(handle);
        const colors = rest.filter(one => typeof one === 'object' || one === 'bylayer' || one === 'byblock')
            .map(one => ({color: one}));
        const backgrounds = {'Solid...': ['SolidBackground', ...colors.slice(0, 1)],
            'Gradient...': ['GradientBackground', ...colors, 0, rest[4]], 'Image...': ['ImageBackground', ...rest.slice(3)]};
        if (view && !onSheet) {
            (backgrounds[kind] || []).forEach((value, index) => view.hold('Background()', index, value, 'background', action));
        }
        if (isNew && !onSheet && sheet !== '' && sheet !== 'Model') {
            this.space = sheet;
        } else if (isNew) {
            this.space = '';
        }
    }

    // A list of the dialog may hand over one of its choices where a view's name is meant.
    namedView([handle, , mayRename, onSheet, old, name, cls, first, opposite], action) {
        const view = onSheet ? this.records.find(one => one.made === 'SheetNamedView'
            && [old, name].includes(one.value('Name()', 0))) : this.byHandle.get(handle);
        if (!view) {
            return;
        }
        if (mayRename && !['', '<None>', 'Solid...', 'Gradient...', 'Image...'].includes(old)) {
            view.hold('Name()', 0, name, 'Name', action);
        }
        if (name.toLowerCase() !== 'current') {
            view.hold('Class()', 0, cls, 'category', action);
        }
        if ([...first, ...opposite].some(value => Math.abs(value) > vertexStates)) {
            [...first, ...opposite].forEach((value, index) => view.hold('Window()', index, value, 'window', action));
        }
    }

    printStyle([name, , sheet], action) {
        if (sheet !== 'Model' && sheet !== '') {
            this.recordOf('Sheet', sheet, action).hold('PrintStyle()', 0, name, 'print style', action);
        }
    }

    // Edits of a polyline: where its vertices are is known until it is reshaped.
    reshape(handle, values, action) {
        const one = this.byHandle.get(handle);
        const [word, , , number, place, end] = values;
        if (!one) {
            return;
        }
        if (word === '_MOVE' || word === '_MOVE3D') {
            place.slice(0, word === '_MOVE' ? 2 : 3).forEach((value, axis) =>
                one.hold('VertexCoordinate(' + number + ')', axis, value, 'vertex', action));
        } else if (word === '_WIDTH') {
            one.hold('SegmentStartWidth(' + number + ')', 0, place, 'start width', action);
            one.hold('SegmentEndWidth(' + number + ')', 0, end, 'end width', action);
        } else if (word !== '_JOIN') {
            one.isReshaped = true;
        }
    }
}

// What is asked of an object for the value, `which` telling which of several.
function questionOf(name, which) {
    if (name.includes('#')) {
        return name.replace('#', String(Number(which) + 1)) + '()';
    }
    return name.endsWith(')') ? name : name + '(' + which + ')';
}
