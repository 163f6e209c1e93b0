// What custom actions say of the drawing, beside the calls that come of them.

'use strict';

const nearZero = 1e-10; // a smaller bulge is straight
// Taken away by their names, where others are erased by their handles.
const removedClasses = ['AcDbLayerTableRecord', 'AcDbViewTableRecord'];

// A datum of another form counts as the neutral value of the form that is asked for, as it does to the application.
function neutralOf(form) {
    const neutral = {string: '', handle: '', class: '', bool: false, int: 0, double: 0, color: null, point: [0, 0, 0]};
    return form in neutral ? neutral[form] : [];
}

function drawPolyline(recorded, at, action) {
    const handle = at(3, 'handle');
    const vertices = at(0, 'points').map(point => ({value: {point: point}}));
    recorded.added({class: at(4, 'class'), handle: handle,
        properties: [{tag: 'Vertex', value: {collection: {elements: vertices}}}]}, action);
    const one = recorded.byHandle.get(handle);
    if (!one || one.action !== action) {
        return;
    }
    one.hold('Closed()', 0, at(2, 'bool'), 'closed', action);
    at(1, 'points').forEach(([bulge], i) => {
        if (Math.abs(bulge) > nearZero) {
            one.hold('SegmentAngle(' + i + ')', 0, 4 * Math.atan(bulge), 'bulge', action);
        }
    });
    at(5, 'doubles').forEach((value, i) => one.hold('SegmentStartWidth(' + i + ')', 0, value, 'start width', action));
    at(6, 'doubles').forEach((value, i) => one.hold('SegmentEndWidth(' + i + ')', 0, value, 'end width', action));
    if (at(7, 'bool')) {
        one.hold('GlobalWidth()', 0, at(8, 'double'), 'width', action);
    }
}

function fillHatch(recorded, at, action) {
    const pattern = [['PatternName()', 0, at(0, 'string'), 'pattern', action],
        ['PatternScale()', 0, at(1, 'double'), 'scale', action],
        ['PatternAngle()', 0, at(2, 'double'), 'angle', action]];
    const [byPoints, byEntities, byBulges, hasGradient] = [3, 4, 5, 6].map(number => at(number, 'bool'));
    if (byPoints) {
        flatten(at(7, 'points2d')).forEach((value, index) =>
            pattern.push(['InternalPoints()', index, value, 'points', action]));
    } else if (!byEntities && !byBulges) {
        // The first point stands at the end once more.
        const points = at(8, 'points2d');
        at(7, 'ints').forEach((value, index) => pattern.push(['LoopCounts()', index, value, 'loops', action]));
        flatten(points.concat(points.slice(0, 1))).forEach((value, index) =>
            pattern.push(['BoundaryPoints()', index, value, 'boundary', action]));
    }
    const first = byPoints ? 8 : byBulges && !byEntities ? 10 : 9;
    if (hasGradient) {
        const gradient = [{color: at(first, 'color')}, {color: at(first + 1, 'color')}, at(first + 2, 'bool'),
            at(first + 3, 'double')];
        gradient.forEach((one, index) => pattern.push(['HatchPattern.GradientData()', index, one, 'gradient', action]));
    }
    tellMaker(recorded, 'AcDbHatch', action, pattern);
}

// Of the object that an action makes, which is added in front of it or behind it.
function tellMaker(recorded, cls, action, parts) {
    for (const handle of recorded.origins.handlesOf(action.key)) {
        const one = recorded.byHandle.get(handle);
        recorded.makers.set(cls + ' ' + handle, parts);
        if (one && one.cls === cls) {
            parts.filter(([question, index]) => !one.holds(question, index)).forEach(part => one.hold(...part));
        }
    }
}

function embedObject(recorded, at, action) {
    const flags = at(0, 'int');
    tellMaker(recorded, 'AcDbOle2Frame', action, [['Path()', 0, at(1, 'string'), 'file', action],
        ['Flags()', 0, (flags & 1) !== 0, 'flags', action], ['Flags()', 1, (flags & 2) !== 0, 'flags', action]]);
}

function makeViewport(recorded, at, action) {
    const parts = [['Sheet()', 0, at(5, 'string'), 'sheet', action]];
    at(0, 'points').forEach((corner, number) => corner.forEach((value, axis) =>
        parts.push(['VertexCoordinate(' + number + ')', axis, value, 'corner', action])));
    tellMaker(recorded, 'AcDbViewport', action, parts);
}

// No macro erases a sheet.
function eraseObjects(recorded, at, action) {
    const told = recorded.told.of(action.key);
    const classes = at(1, 'classes');
    for (const [i, handle] of at(0, 'handles').entries()) {
        if (told.objects.has(handle) || classes[i] === 'AcDbLayout') {
            continue;
        }
        if (removedClasses.includes(classes[i])) {
            recorded.find(handle, classes[i], action);
        }
        const leader = recorded.leaders.get(handle);
        recorded.hold(leader || handle, leader ? 'NoteAnnotation.Erased()' : 'Erased()', true, 'Erased', action);
    }
}

// What a trim makes another class is another object from here on.
function trimObjects(recorded, at) {
    const classes = at(6, 'classes');
    at(5, 'handles').forEach((handle, i) => {
        const one = recorded.byHandle.get(handle);
        if (one && one.cls !== classes[i]) {
            recorded.byHandle.delete(handle);
        }
    });
}

function changeSheets(recorded, at, action) {
    const [word, name, copy, third] = [0, 1, 2, 3].map(number => at(number, 'string'));
    const count = action.action.custom.data.length;
    const made = count === 4 ? third : word === 'New' ? name : word === 'Copy' ? copy || name : null;
    if (count === 1) {
        recorded.activate(word, action);
    } else if (made !== null) {
        recorded.recordOf('Sheet', made, action).isFound = false;
    } else if (word === 'Delete') {
        recorded.recordOf('Sheet', name, action).hold('Erased()', 0, true, 'Erased', action);
    } else {
        recorded.recordOf('Sheet', word, action).hold('Name()', 0, name, 'Name', action);
    }
}

// As the dialog shows the kinds of backgrounds; what else it hands over is its own.
function backgroundOf(at) {
    const color = number => ({color: at(number, 'color')});
    const numbers = first => [0, 1, 2, 3].map(i => at(first + i, 'double'));
    switch (at(6, 'string')) {
    case 'Solid...': return ['SolidBackground', color(7)];
    case 'Gradient...': return ['GradientBackground', color(8), color(9), color(10), 0, at(11, 'double')];
    case 'Image...': return ['ImageBackground', at(10, 'string'), at(11, 'string'), ...numbers(12)];
    }
    return [];
}

// Only views of the model have a background. The sheet that was active is active again behind a view of the model.
function makeView(recorded, at, action) {
    const [handle, name, sheet] = [at(0, 'handle'), at(5, 'string'), at(4, 'string')];
    const [isNew, onSheet] = [at(2, 'bool'), at(3, 'bool')];
    const made = onSheet ? 'SheetNamedView' : 'ModelNamedView';
    const view = isNew ? recorded.named(made, name, handle, at(1, 'class'), action)
        : recorded.byHandle.get(handle);
    if (view && !onSheet) {
        backgroundOf(at).forEach((value, index) => view.hold('Background()', index, value, 'background', action));
    }
    if (isNew) {
        recorded.activate(onSheet ? 'Model' : sheet, action);
    }
}

// A list of the dialog may hand over one of its choices where a view's name is meant.
function changeView(recorded, at, action) {
    const [old, name] = [at(4, 'string'), at(5, 'string')];
    const window = [...at(7, 'point'), ...at(8, 'point')];
    const renames = at(2, 'bool') && !['', '<None>', 'Solid...', 'Gradient...', 'Image...'].includes(old);
    const view = at(3, 'bool') ? recorded.recordOf('SheetNamedView', renames ? old : name, action)
        : recorded.byHandle.get(at(0, 'handle'));
    if (!view) {
        return;
    }
    if (renames) {
        view.hold('Name()', 0, name, 'Name', action);
    }
    if (name.toLowerCase() !== 'current') {
        view.hold('Class()', 0, at(6, 'string'), 'category', action);
    }
    if (window.some(value => Math.abs(value) > nearZero)) {
        window.forEach((value, index) => view.hold('Window()', index, value, 'window', action));
    }
}

function setPrintStyle(recorded, at, action) {
    const sheet = at(2, 'string');
    if (sheet !== 'Model' && sheet !== '') {
        recorded.recordOf('Sheet', sheet, action).hold('PrintStyle()', 0, at(0, 'string'), 'print style', action);
    }
}

// Edits of a polyline: where its vertices are is known until it is reshaped.
function editPolyline(recorded, at, action) {
    const {kind, data} = action.action.custom;
    const word = kind === kinds.edit ? at(0, 'string') : '';
    const [handle] = listOf(datumOf(data, kind === kinds.edit ? 1 : 0));
    const one = recorded.byHandle.get(handle);
    const number = at(3, 'int');
    if (!one || word === '_JOIN') {
        return;
    }
    if (word === '_MOVE' || word === '_MOVE3D') {
        at(4, 'point').slice(0, word === '_MOVE' ? 2 : 3).forEach((value, axis) =>
            one.hold('VertexCoordinate(' + number + ')', axis, value, 'vertex', action));
    } else if (word === '_WIDTH') {
        one.hold('SegmentStartWidth(' + number + ')', 0, at(4, 'double'), 'start width', action);
        one.hold('SegmentEndWidth(' + number + ')', 0, at(5, 'double'), 'end width', action);
    } else {
        one.isReshaped = true;
    }
}

function setAttribute(recorded, at, action) {
    const tag = at(2, 'string');
    recorded.hold(at(0, 'handle'), 'Attribute ' + tag + '.Value()', at(3, 'string'), tag, action);
}

function activate(recorded, at, action) {
    recorded.hold(at(0, 'handles')[0], 'Active()', true, 'Active', action);
}

// By their kinds. Each asks for the data of its action by number and form.
const customActions = {[kinds.trim]: trimObjects, [kinds.sheet]: changeSheets, [kinds.namedView]: changeView,
    [kinds.embed]: embedObject, [kinds.pen]: drawPolyline, [kinds.erase]: eraseObjects, [kinds.hatch]: fillHatch,
    [kinds.attribute]: setAttribute, [kinds.edit]: editPolyline, [kinds.viewBackground]: makeView,
    [kinds.vertex]: editPolyline, [kinds.activate]: activate, [kinds.viewport]: makeViewport,
    [kinds.printStyle]: setPrintStyle};
