// What a recording says of its drawing: which objects there are in the end and what they hold, where the recording tells
// it, and which calls the application has to be handed.

'use strict';

// An object as it should be: `held` has what it holds, {question, index, value, tag, action}, by question and index.
class Expected {
    constructor(handle, cls, made, action) {
        this.handle = handle;
        this.cls = cls; // the drawing's
        this.made = made; // the interface's
        this.action = action; // that adds it, or names it first
        this.held = new Map();
        this.name = null; // the first one of what is found by its name
        this.space = undefined; // the sheet as it should be, null in the model, undefined where it is not compared
        this.excused = new Set(); // places whose values the report tells as lost
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
        // What an action tells of the object that it makes, which another one adds: by class and handle.
        this.makers = new Map();
        this.hatchless = new Set(); // lines whose action makes no hatch
        this.objects = []; // Expected, inserted ones in their order
        this.found = []; // those that were in the drawing already
        this.records = []; // Expected that are found by their names
        this.byHandle = new Map();
        this.newNames = new Map(); // by handle
        this.operations = []; // {name, owner, handed, action}
        this.strange = []; // tags without a row
        this.descriptions = new Map(); // of blocks, also those that are lost until the block is made anew
        this.space = null; // where objects are added, as theirs
        this.activate(sheet.model === false && sheet.name ? sheet.name : 'Model', {key: ''});
        for (const one of actionsOf(lines)) {
            for (const kind of ['added', 'modified', 'property', 'custom'].filter(name => name in one.action)) {
                this[kind](one.action[kind], one);
            }
        }
    }

    // By now: what it is called in the drawing, or what it has been renamed to.
    nameOf(handle) {
        const record = this.drawing.get(handle);
        const renamed = this.newNames.get(handle);
        return renamed !== undefined ? renamed : record && (record.name || record.layoutName) || '';
    }

    // What is drawn from here on is on that sheet, or in the model.
    activate(sheet, action) {
        this.space = sheet === '' || sheet === 'Model' ? null : this.recordOf('Sheet', sheet, action);
    }

    // A record that is named: made by the action, or found.
    named(made, name, handle, cls, action) {
        const one = new Expected(handle, cls, made, action);
        one.name = made === 'BlockDefinition' ? withoutNumber(name) : typeof name === 'string' ? name : '';
        if (one.name) {
            one.hold('Name()', 0, one.name, 'Name', action);
        }
        this.records.push(one);
        if (handle) {
            this.byHandle.set(handle, one);
        }
        return one;
    }

    findNamed(made, name, handle, cls, action) {
        const one = this.named(made, name, handle, cls, action);
        one.isFound = true;
        return one;
    }

    // What the macro finds in the drawing by its name.
    find(handle, cls, action) {
        const drawn = this.drawing.get(handle);
        if (!drawn || drawn.class !== cls || this.byHandle.has(handle)) {
            return;
        }
        if (this.places.records.has(cls) && this.nameOf(handle)) {
            this.findNamed(this.places.interfaceOf(drawn), this.nameOf(handle), handle, cls, action);
        } else {
            this.findObject(handle, action);
        }
    }

    // What the drawing tells no name of.
    findObject(handle, action) {
        const drawn = this.drawing.get(handle);
        if (drawn && !this.byHandle.has(handle)) {
            const one = new Expected(handle, drawn.class, this.places.interfaceOf(drawn) || 'FoundObject', action);
            one.isFound = true;
            this.found.push(one);
            this.byHandle.set(handle, one);
        }
    }

    // What an action changes.
    findChanged({handle, class: cls}, action) {
        const leader = this.leaders.get(handle);
        this.find(leader || handle, leader ? 'AcDbLeader' : cls, action);
    }

    // The one that has the name now.
    recordOf(made, name, action) {
        const found = this.records.filter(one => one.made === made && one.value('Name()', 0) === name
            && !one.holds('Erased()', 0)).pop();
        return found || this.findNamed(made, name, '', '', action);
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
            const isNameless = !named && this.assumed.of(action.key).properties.has(row.tag);
            const name = named ? valueOf(named.value, other => this.nameOf(other))
                : isNameless ? '' : this.nameOf(handle);
            const one = this.named(row.made, name, handle, record.class, action);
            holdDrawn(this, one);
            this.setAll(record, action, true);
            return;
        }
        if (made && !(record.class === 'AcDbHatch' && this.hatchless.has(action.line))) {
            const one = new Expected(handle, record.class, made, action);
            one.space = made === 'Viewport' ? undefined : this.space; // that is told with its corners
            this.objects.push(one);
            this.byHandle.set(handle, one);
            holdDrawn(this, one);
            (this.makers.get(record.class + ' ' + handle) || []).forEach(part => one.hold(...part));
            this.setAll(record, action, true);
            this.holdAssumed(one, record);
            this.align(one);
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
        if (record.class === 'AcDbLayout') {
            this.layout(record, action);
            return;
        }
        this.findChanged(record, action);
        this.setAll(record, action, false);
    }

    // Of a layout the recording tells the name of its sheet. What is told of the model is of no object.
    layout(record, action) {
        const told = tag => (record.properties.find(one => one.tag === tag) || {value: ''}).value;
        const name = told('SheetName_PrintStyleTable') || this.nameOf(record.handle);
        if (name && String(told('Model_PrintStyleTable')).toLowerCase() !== 'yes') {
            const sheet = this.recordOf('Sheet', name, action);
            sheet.cls = record.class;
            this.byHandle.set(record.handle, sheet);
            this.setAll(record, action, false);
        }
    }

    property(record, action) {
        this.findChanged(record, action);
        this.setAll({class: record.class, handle: record.handle, properties: [record]}, action, false);
    }

    // Of two records of one property the first counts, where there is no row for the second. A picture has a yes or no of
    // its own under the name of the transparency, and that alone may be told.
    setAll(record, action, isAdded) {
        const told = this.told.of(action.key);
        const assumed = this.assumed.of(action.key);
        if (told.whole || told.objects.has(record.handle)) {
            return;
        }
        const firsts = new Map();
        record.properties.forEach(one => {
            const second = one.tag + ' (2)';
            if (!firsts.has(one.tag)) {
                firsts.set(one.tag, one);
            } else if (!firsts.has(second) && this.places.row(record.class, second, isAdded)) {
                firsts.set(second, Object.assign({}, one, {tag: second}));
            }
        });
        const block = record.class === 'AcDbBlockTableRecord' ? this.byHandle.get(record.handle) : null;
        if (block && firsts.has('Description')) {
            this.descriptions.set(block, firsts.get('Description').value);
        }
        const rank = one => this.places.rank(record.class, one.tag);
        for (const one of [...firsts.values()].sort((a, b) => rank(a) - rank(b))) {
            const isTransparency = record.class === 'AcDbRasterImage' && one.tag === 'Transparency'
                && Object(one.value).transparency;
            if (told.properties.has(one.tag) && !isTransparency) {
                this.excuse(record, one.tag, isAdded);
            } else if (this.isOf(record)) {
                this.set(record.handle, one, action, isAdded, assumed.properties.get(one.tag));
            }
        }
    }

    // The macro may hold something else where a property is lost.
    excuse(record, tag, isAdded) {
        const one = this.byHandle.get(record.handle);
        const row = one ? this.places.row(one.cls, tag, isAdded) : null;
        if (row) {
            one.excused.add(row.name);
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
        if (one && isAttribute(record)) {
            if (!isAdded) {
                one.hold('Attribute ' + tag + '.Value()', 0, valueOf(record.value, () => ''), tag, action);
            }
            return;
        }
        if (!one) {
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
            holdPoints(one, row, record.value, tag, action);
        } else if (row.name !== '-' && (tag !== 'Erased' && tag !== 'ActivateLayer'
            || String(record.value).toLowerCase() === 'yes')) {
            const prefix = leader ? 'NoteAnnotation.' : '';
            if (!isAdded && row.name === 'Name' && one.name !== null) {
                this.newNames.set(handle, String(valueOf(record.value, () => '')));
            }
            holdValue(one, Object.assign({}, row, {name: prefix + row.name}), record, action, assumed,
                other => this.nameOf(other));
        }
    }

    // What a block is made of, as handles. It is made anew then, where it was, with its last description.
    setObjects(one, recorded, action) {
        const {inBlock} = this.told.of(action.key);
        const elements = recorded && recorded.collection ? recorded.collection.elements : [];
        const handles = elements.map(element => element.value).filter(handle => !inBlock.has(handle));
        const {comments = '', origin = [0, 0, 0]} = this.drawing.get(one.handle) || {};
        const description = this.descriptions.has(one) ? this.descriptions.get(one) : comments;
        one.hold('Description()', 0, description, 'Description', action);
        origin.forEach((value, axis) => one.hold('Position()', axis, value, 'origin', action));
        [...one.held.keys()].filter(key => key.startsWith('Objects()')).forEach(key => one.held.delete(key));
        handles.forEach((handle, index) => one.hold('Objects()', index, {handle: handle}, 'Objects', action));
    }

    // Of an object that has been added, or that was in the drawing already.
    hold(handle, question, value, tag, action) {
        this.findObject(handle, action);
        if (this.byHandle.has(handle)) {
            this.byHandle.get(handle).hold(question, 0, value, tag, action);
        }
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
        const isKept = ({of, value}) => !told.objects.has(of) && !(value !== null && told.objects.has(value.handle));
        for (const call of this.calls.of(record).filter(one => !told.objects.has(one.owner))) {
            this.operations.push(Object.assign({action: action}, call, {handed: call.handed.filter(isKept)}));
        }
        if (kind in customActions) {
            const at = (number, form) => data[number] && form in data[number] ? data[number][form] : neutralOf(form);
            customActions[kind](this, at, action);
        }
    }
}
