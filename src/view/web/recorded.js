// What a recording says of its drawing: which objects there are in the end and what they hold, where the recording tells
// it, and which calls the application has to be handed.

'use strict';

// Custom actions by their numbers. One that is refused ends its command.
const kinds = {trim: 6, sheet: 13, namedView: 14, embed: 15, pen: 16, erase: 17, hatch: 18, attribute: 39, edit: 40,
    viewBackground: 41, vertex: 42, activate: 45, viewport: 46, printStyle: 47};
const refusedKinds = [24, 25, 51, 52, 53, 54];
const lastKind = 55;
// Of a note the drawing has the number, from 1.
const attachments = [].concat(...['Top', 'Middle', 'Bottom'].map(row => ['Left', 'Center', 'Right'].map(
    column => row + ' ' + column)));
// How a number of the record becomes the one that the object holds.
const measures = {half: value => value / 2, round: value => value / (2 * Math.PI),
    area: value => Math.sqrt(Math.max(value, 0) / Math.PI)};
const nearZero = 1e-10; // a smaller bulge is straight

// Recorded of a block without a name: the host numbers it when it is made.
function withoutNumber(name) {
    return typeof name === 'string' ? name.replace(/^\*U\d+$/, '*U') : '';
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

// What the report tells of the actions, as lost or as assumed: all of one, objects, objects that a block lacks, and
// properties by their tags, with the value that the macro has in place of one that is assumed.
class Told {
    constructor(notes) {
        this.byAction = new Map();
        this.lostOnLine = new Set(); // the line and the handle of each object
        for (const note of notes) {
            const key = actionKey(note.line, note.path);
            if (!this.byAction.has(key)) {
                this.byAction.set(key, noneTold());
            }
            this.add(this.byAction.get(key), note);
        }
    }

    add(told, {line, what, reason}) {
        const [, tag, handle, block] = /^(?:property "(.*)" of |added |changes of )?(?:AcDb\w+|object) ([0-9A-F]+)( in block .*)?$/
            .exec(what) || [];
        if (block !== undefined) {
            told.inBlock.add(handle);
        } else if (tag !== undefined) {
            const [, number] = / gives (-?\d+(?:\.\d+)?)$/.exec(reason) || [];
            told.properties.set(tag, number === undefined ? anything : Number(number));
        } else if (handle !== undefined) {
            told.objects.add(handle);
            this.lostOnLine.add(line + ' ' + handle);
        } else if (what.startsWith('custom ')) {
            told.whole = true;
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
    constructor(lines, places, calls, told, assumed, origins) {
        this.origins = origins;
        this.places = places;
        this.calls = calls;
        this.told = told;
        this.assumed = assumed;
        const records = lines.filter(line => line && line.object).map(line => line.object);
        this.drawing = new Map(records.map(one => [one.handle, one]));
        // A leader brings its note with it.
        this.leaders = new Map(records.filter(one => one.class === 'AcDbMText' && one.reactors && one.reactors.length)
            .map(one => [one.handle, one.reactors[0]]));
        const header = lines.find(line => line && line.recording);
        const sheet = header && header.recording.sheet || {name: '', model: true};
        this.space = sheet.model === false ? sheet.name || '' : '';
        // What an action tells of the object that it makes, which another one adds: by class and handle.
        this.makers = new Map();
        this.hatchless = new Set(); // lines whose action makes no hatch
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

    // A record that is named: made by the action, or found.
    named(made, name, handle, cls, action) {
        const one = new Expected(handle, cls, made, action);
        one.name = withoutNumber(name);
        if (one.name) {
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

    // The one that has the name now.
    recordOf(made, name, action) {
        const found = this.records.filter(one => one.made === made && one.value('Name()', 0) === name).pop();
        return found || this.found(made, name, '', '', action);
    }

    added(record, action) {
        const {handle} = record;
        const row = this.places.records.get(record.class);
        const made = this.places.interfaces.get(record.class);
        if (this.leaders.has(handle) || this.told.lostOnLine.has(action.line + ' ' + handle)) {
            return;
        }
        if (row && row.tag !== '-') {
            const named = record.properties.find(one => one.tag === row.tag);
            const one = this.named(row.made, this.value(named ? named.value : this.nameOf(handle)), handle, record.class,
                action);
            this.holdDrawn(one, this.drawing.get(handle) || {});
            this.setAll(record, action, true);
            return;
        }
        if (made && !(record.class === 'AcDbHatch' && this.hatchless.has(action.line))) {
            const one = new Expected(handle, record.class, made, action);
            one.space = made === 'Viewport' ? null : this.space; // that is told with its corners
            this.objects.push(one);
            this.byHandle.set(handle, one);
            this.holdDrawn(one, this.drawing.get(handle) || {});
            (this.makers.get(record.class + ' ' + handle) || []).forEach(part => one.hold(...part));
            this.setAll(record, action, true);
            this.holdAssumed(one, record);
            this.align(one);
        }
    }

    // What the drawing tells of an added object beside its record.
    holdDrawn(one, drawn) {
        const {action, handle} = one;
        const hold = (question, index, value, tag) => one.hold(question, index, value, tag, action);
        for (const [key, value] of Object.entries(drawn)) {
            const row = this.places.row(one.cls, '.' + key, true);
            if (row) {
                hold(row.name + '()', 0, value, key);
            }
        }
        const block = this.drawing.get(drawn.blockTableRecord) || {};
        if (block.isFromExternalReference) {
            hold('Path()', 0, block.pathName || '', 'pathName');
        }
        if (this.drawing.has(drawn.annotationObjectId)) {
            this.annotate(this.drawing.get(drawn.annotationObjectId), (name, value, tag) => hold(name + '()', 0, value, tag));
        }
        let corner = 0;
        (drawn.faces || []).forEach((face, number) => {
            const corners = face.filter(vertex => vertex);
            hold('FaceCount(' + number + ')', 0, corners.length, 'faces');
            corners.forEach(vertex => hold('Face(' + corner++ + ')', 0, vertex, 'faces'));
            hold('Count()', 0, (drawn.vertices || []).length, 'vertices');
        });
        if (/Diametric|Radial/.test(one.cls) && drawn.chordPoint) {
            const {chordPoint, farChordPoint} = drawn;
            const center = farChordPoint ? chordPoint.map((value, axis) => (value + farChordPoint[axis]) / 2) : drawn.center;
            (center || []).forEach((value, axis) => hold('Curve.Center()', axis, value, 'center'));
            hold('Curve.Radius()', 0, Math.hypot(...chordPoint.map((value, axis) => value - center[axis])), 'radius');
        }
        if (one.cls === 'AcDbBlockTableRecord') {
            (drawn.origin || [0, 0, 0]).forEach((value, axis) => hold('Position()', axis, value, 'origin'));
        }
        if (one.cls === 'AcDbMlineStyle' && drawn.elements && !this.told.of(action.key).properties.has('elements')) {
            linesOfStyle(handle, drawn.elements, style => this.nameOf(style)).forEach(call =>
                this.operations.push(Object.assign({action: action}, call)));
        }
    }

    // What stands at the end of a leader.
    annotate(annotation, hold) {
        if (annotation.class === 'AcDbFcf') {
            hold('ToleranceAnnotation', annotation.text || '', 'text');
        } else if (annotation.class === 'AcDbBlockReference') {
            hold('BlockAnnotation', this.nameOf(annotation.blockTableRecord), 'blockTableRecord');
        } else if (annotation.class === 'AcDbMText') {
            const {textHeight = 0, lineSpacingFactor = 1, attachment = 1, backgroundScaleFactor = anything} = annotation;
            const note = {TextHeight: textHeight, LineSpaceFactor: lineSpacingFactor,
                LineSpaceDistance: textHeight * lineSpacingFactor * 5 / 3, Justify: attachments[attachment - 1],
                Width: annotation.width || 0, Rotation: annotation.rotation || 0,
                BackgroundMask: annotation.backgroundFillOn || false,
                UseDrawingBackgroundColor: annotation.useBackgroundColorOn || false,
                BackgroundBorderOffsetFactor: backgroundScaleFactor};
            if ('backgroundFillColor' in annotation) {
                note.BackgroundFillColor = {color: annotation.backgroundFillColor};
            }
            if ('textStyle' in annotation) {
                note.TextStyle = this.nameOf(annotation.textStyle);
            }
            Object.entries(note).forEach(([name, value]) => hold('NoteAnnotation.' + name, value, name));
        }
    }

    // Values in place of those that are not recorded.
    holdAssumed(one, record) {
        const recorded = new Set(record.properties.map(property => property.tag));
        for (const [tag, value] of this.assumed.of(one.action.key).properties) {
            const row = recorded.has(tag) || value === 0 ? null : this.places.row(one.cls, tag, true);
            if (row && row.name !== '-' && !row.points && !one.holds(questionOf(row.name, ''), row.index)) {
                one.hold(questionOf(row.name, ''), row.index, value, tag, one.action);
            }
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
        const row = this.places.records.get(record.class);
        const name = this.nameOf(record.handle);
        if (record.class === 'AcDbLayout') {
            this.layout(record, action);
            return;
        }
        if (row && !this.byHandle.has(record.handle) && name) {
            this.found(row.made, name, record.handle, record.class, action);
        }
        this.setAll(record, action, false);
    }

    // Of a layout the recording tells the name of its sheet. What is told of the model is of no object.
    layout(record, action) {
        const valueOf = tag => (record.properties.find(one => one.tag === tag) || {value: ''}).value;
        const name = valueOf('SheetName_PrintStyleTable') || this.nameOf(record.handle);
        if (name && String(valueOf('Model_PrintStyleTable')).toLowerCase() !== 'yes') {
            const sheet = this.recordOf('Sheet', name, action);
            sheet.cls = record.class;
            this.byHandle.set(record.handle, sheet);
            this.setAll(record, action, false);
        }
    }

    property(record, action) {
        this.setAll({class: record.class, handle: record.handle, properties: [record]}, action, false);
    }

    // Of two records of one property the first counts.
    setAll(record, action, isAdded) {
        const told = this.told.of(action.key);
        const assumed = this.assumed.of(action.key);
        if (told.whole || told.objects.has(record.handle)) {
            return;
        }
        const firsts = new Map();
        record.properties.forEach(one => {
            if (!firsts.has(one.tag)) {
                firsts.set(one.tag, one);
            }
        });
        const rank = one => this.places.rank(record.class, one.tag);
        for (const one of [...firsts.values()].sort((a, b) => rank(a) - rank(b))) {
            if (!told.properties.has(one.tag) && this.isOf(record)) {
                this.set(record.handle, one, action, isAdded, assumed.properties.get(one.tag));
            }
        }
    }

    // Behind a trim a handle may be of an object of another class.
    isOf({handle, class: cls}) {
        const one = this.byHandle.get(handle);
        return this.leaders.has(handle) || !one || one.cls === cls;
    }

    set(handle, record, action, isAdded, assumed) {
        const {tag} = record;
        const leader = this.leaders.get(handle);
        const one = this.byHandle.get(leader || handle);
        if (!one || String(record.group || '').toLowerCase() === 'blockattributes') {
            return;
        }
        const cls = leader ? 'AcDbMText' : one.cls;
        const row = this.places.row(cls, tag, isAdded);
        if (cls === 'AcDbMText' && tag === 'Justify' && !isAdded) {
            // Its point goes elsewhere.
            [0, 1, 2].forEach(axis => one.hold('Position()', axis, anything, tag, action));
        }
        if (!row) {
            this.strange.push({cls: cls, tag: tag, action: action});
        } else if (row.name === 'Objects') {
            this.setObjects(one, record.value, action);
        } else if (row.points) {
            this.setPoints(one, row, record.value, tag, action);
        } else if (row.name !== '-' && (tag !== 'Erased' && tag !== 'ActivateLayer'
            || String(record.value).toLowerCase() === 'yes')) {
            const prefix = leader ? 'NoteAnnotation.' : '';
            this.setValue(one, Object.assign({}, row, {name: prefix + row.name}), record, action, assumed);
        }
    }

    // `assumed` is what the macro has in place of the value, undefined where it has the value.
    setValue(one, row, record, action, assumed) {
        let {name} = row;
        const {tag, value: recorded} = record;
        const index = typeof record.index === 'number' ? {int: Math.trunc(record.index)} : record.index || null;
        const hold = (question, at, value) => one.hold(question, at, value, tag, action);
        let value = this.value(recorded);
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
            value = this.affix(value, row.words.includes('affixes'), behind =>
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
    affix(value, both, holdBehind) {
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
        (recorded.collection ? recorded.collection.elements : []).forEach((element, number) => {
            const {point = []} = element.value !== null && typeof element.value === 'object' ? element.value : {};
            holdPoint(questionOf(row.name, String(number)), point);
        });
    }

    value(recorded) {
        if (recorded === null || typeof recorded !== 'object') {
            return typeof recorded === 'string' ? withoutNumber(recorded) : recorded;
        }
        const [form, held] = Object.entries(recorded)[0];
        switch (form) {
        case 'id': return this.nameOf(held) || undefined;
        case 'int': return new Choice(held, '');
        case 'transparency': return [true, true, (255 - held.alpha) / 2.55][held.method];
        case 'element': {
            const number = held.tag !== null && typeof held.tag === 'object' ? held.tag.int : undefined;
            return new Choice(number, this.value(held.value));
        }
        case 'collection': {
            const chosen = held.elements[held.chosen || 0];
            return chosen ? this.value({element: chosen}) : new Choice(held.chosen || 0, '');
        }
        case 'color': return {color: held};
        }
        return held;
    }

    custom(record, action) {
        const {kind, data} = record;
        const told = this.told.of(action.key);
        if (told.whole) {
            if (kind === kinds.hatch) {
                this.hatchless.add(action.line);
            }
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
        case kinds.erase: this.erase(values[0], action); break;
        case kinds.embed: this.tell('AcDbOle2Frame', action, [['Path()', 0, values[1], 'file', action],
            ['Flags()', 0, (values[0] & 1) !== 0, 'flags', action], ['Flags()', 1, (values[0] & 2) !== 0, 'flags', action]]);
            break;
        case kinds.viewport: this.tell('AcDbViewport', action, [].concat(...values[0].map((corner, number) => corner.map(
            (value, axis) => ['VertexCoordinate(' + number + ')', axis, value, 'corner', action]))).concat(
                [['Sheet()', 0, values[5], 'sheet', action]])); break;
        case kinds.activate: this.hold(values[0][0], 'Active()', true, 'Active', action); break;
        case kinds.trim: this.trim(values[5], values[6]); break;
        case kinds.sheet: this.sheet(values, action); break;
        case kinds.viewBackground: this.viewBackground(values, action); break;
        case kinds.namedView: this.namedView(values, action); break;
        case kinds.attribute: this.hold(values[0], 'Attribute ' + values[2] + '.Value()', values[3], values[2], action); break;
        case kinds.printStyle: this.printStyle(values, action); break;
        case kinds.edit: this.reshape(values[1] instanceof Array ? values[1][0] : values[1], values, action); break;
        case kinds.vertex: this.reshape(values[0], values, action); break;
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
            if (Math.abs(bulge) > nearZero) {
                one.hold('SegmentAngle(' + i + ')', 0, 4 * Math.atan(bulge), 'bulge', action);
            }
        });
        starts.forEach((value, i) => one.hold('SegmentStartWidth(' + i + ')', 0, value, 'start width', action));
        ends.forEach((value, i) => one.hold('SegmentEndWidth(' + i + ')', 0, value, 'end width', action));
        if (hasOneWidth) {
            one.hold('GlobalWidth()', 0, width, 'width', action);
        }
    }

    hatch([name, scale, angle, , , , hasGradient, ...rest], action) {
        const pattern = [['PatternName()', 0, name, 'pattern', action], ['PatternScale()', 0, scale, 'scale', action],
            ['PatternAngle()', 0, angle, 'angle', action]];
        if (hasGradient) {
            rest.slice(-4).forEach((one, index) => pattern.push(['HatchPattern.GradientData()', index,
                index < 2 ? {color: one} : one, 'gradient', action]));
        }
        this.tell('AcDbHatch', action, pattern);
    }

    // Of the object that an action makes, which is added in front of it or behind it.
    tell(cls, action, parts) {
        for (const handle of this.origins.handlesOf(action.key)) {
            const one = this.byHandle.get(handle);
            this.makers.set(cls + ' ' + handle, parts);
            if (one && one.cls === cls) {
                parts.filter(([question, index]) => !one.holds(question, index)).forEach(part => one.hold(...part));
            }
        }
    }

    erase(handles, action) {
        const told = this.told.of(action.key);
        for (const handle of handles) {
            const leader = this.leaders.get(handle);
            if (!told.objects.has(handle)) {
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
        const renames = mayRename && !['', '<None>', 'Solid...', 'Gradient...', 'Image...'].includes(old);
        const view = onSheet ? this.recordOf('SheetNamedView', renames ? old : name, action) : this.byHandle.get(handle);
        if (!view) {
            return;
        }
        if (renames) {
            view.hold('Name()', 0, name, 'Name', action);
        }
        if (name.toLowerCase() !== 'current') {
            view.hold('Class()', 0, cls, 'category', action);
        }
        if ([...first, ...opposite].some(value => Math.abs(value) > nearZero)) {
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
