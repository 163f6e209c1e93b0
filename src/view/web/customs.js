// What custom actions say of the drawing, beside the calls that come of them.

'use strict';

const nearZero = 1e-10; // a smaller bulge is straight
// Taken away by their names, where others are erased by their handles.
const removedClasses = ['AcDbLayerTableRecord', 'AcDbViewTableRecord'];

function drawPolyline(recorded, [points, bulges, closed, handle, cls, starts, ends, hasOneWidth, width], action) {
    const vertices = points.map(point => ({value: {point: point}}));
    recorded.added({class: cls, handle: handle, properties: [{tag: 'Vertex', value: {collection: {elements: vertices}}}]},
        action);
    const one = recorded.byHandle.get(handle);
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

// The datum where it has the form, else what the application takes in its place.
function formed(data, number, form, neutral) {
    return data[number] !== undefined && form in data[number] ? data[number][form] : neutral;
}

function fillHatch(recorded, values, action) {
    const {data} = action.action.custom;
    const pattern = [['PatternName()', 0, formed(data, 0, 'string', ''), 'pattern', action],
        ['PatternScale()', 0, formed(data, 1, 'double', 0), 'scale', action],
        ['PatternAngle()', 0, formed(data, 2, 'double', 0), 'angle', action]];
    const [byPoints, byEntities, byBulges, hasGradient] = [3, 4, 5, 6].map(number => formed(data, number, 'bool', false));
    const first = byPoints ? 8 : byBulges && !byEntities ? 10 : 9;
    if (hasGradient) {
        const gradient = [{color: formed(data, first, 'color', null)}, {color: formed(data, first + 1, 'color', null)},
            formed(data, first + 2, 'bool', false), formed(data, first + 3, 'double', 0)];
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

function embedObject(recorded, [flags, file], action) {
    tellMaker(recorded, 'AcDbOle2Frame', action, [['Path()', 0, file, 'file', action],
        ['Flags()', 0, (flags & 1) !== 0, 'flags', action], ['Flags()', 1, (flags & 2) !== 0, 'flags', action]]);
}

function makeViewport(recorded, [corners, , , , , sheet], action) {
    const parts = [['Sheet()', 0, sheet, 'sheet', action]];
    corners.forEach((corner, number) => corner.forEach((value, axis) =>
        parts.push(['VertexCoordinate(' + number + ')', axis, value, 'corner', action])));
    tellMaker(recorded, 'AcDbViewport', action, parts);
}

// No macro erases a sheet.
function eraseObjects(recorded, [handles, classes], action) {
    const told = recorded.told.of(action.key);
    for (const [i, handle] of handles.entries()) {
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
function trimObjects(recorded, values) {
    const [, , , , , handles, classes] = values;
    (handles || []).forEach((handle, i) => {
        const one = recorded.byHandle.get(handle);
        if (one && one.cls !== classes[i]) {
            recorded.byHandle.delete(handle);
        }
    });
}

function changeSheets(recorded, values, action) {
    const [word, name, copy, third] = values;
    const made = values.length === 4 ? third : word === 'New' ? name : word === 'Copy' ? copy || name : null;
    if (values.length === 1) {
        recorded.space = word === 'Model' ? '' : word;
    } else if (made !== null) {
        recorded.recordOf('Sheet', made, action).isFound = false;
    } else if (word === 'Delete') {
        recorded.recordOf('Sheet', name, action).hold('Erased()', 0, true, 'Erased', action);
    } else {
        recorded.recordOf('Sheet', word, action).hold('Name()', 0, name, 'Name', action);
    }
}

function makeView(recorded, [handle, cls, isNew, onSheet, sheet, name, kind, ...rest], action) {
    const made = onSheet ? 'SheetNamedView' : 'ModelNamedView';
    const view = isNew ? recorded.named(made, name, handle, cls, action) : recorded.byHandle.get(handle);
    const colors = rest.filter(one => typeof one === 'object' || one === 'bylayer' || one === 'byblock')
        .map(one => ({color: one}));
    const backgrounds = {'Solid...': ['SolidBackground', ...colors.slice(0, 1)],
        'Gradient...': ['GradientBackground', ...colors, 0, rest[4]], 'Image...': ['ImageBackground', ...rest.slice(3)]};
    if (view && !onSheet) {
        (backgrounds[kind] || []).forEach((value, index) => view.hold('Background()', index, value, 'background', action));
    }
    if (isNew && !onSheet && sheet !== '' && sheet !== 'Model') {
        recorded.space = sheet;
    } else if (isNew) {
        recorded.space = '';
    }
}

// A list of the dialog may hand over one of its choices where a view's name is meant.
function changeView(recorded, [handle, , mayRename, onSheet, old, name, cls, first, opposite], action) {
    const renames = mayRename && !['', '<None>', 'Solid...', 'Gradient...', 'Image...'].includes(old);
    const view = onSheet ? recorded.recordOf('SheetNamedView', renames ? old : name, action) : recorded.byHandle.get(handle);
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

function setPrintStyle(recorded, [name, , sheet], action) {
    if (sheet !== 'Model' && sheet !== '') {
        recorded.recordOf('Sheet', sheet, action).hold('PrintStyle()', 0, name, 'print style', action);
    }
}

// Edits of a polyline: where its vertices are is known until it is reshaped.
function editPolyline(recorded, values, action) {
    const handle = typeof values[0] === 'string' && values[0].startsWith('_') ? listOf(values[1])[0] : values[0];
    const one = recorded.byHandle.get(handle);
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

function setAttribute(recorded, [handle, , tag, value], action) {
    recorded.hold(handle, 'Attribute ' + tag + '.Value()', value, tag, action);
}

function activate(recorded, [handles], action) {
    recorded.hold(handles[0], 'Active()', true, 'Active', action);
}

// By their kinds; each is given the plain values of its action's data.
const customActions = {[kinds.trim]: trimObjects, [kinds.sheet]: changeSheets, [kinds.namedView]: changeView,
    [kinds.embed]: embedObject, [kinds.pen]: drawPolyline, [kinds.erase]: eraseObjects, [kinds.hatch]: fillHatch,
    [kinds.attribute]: setAttribute, [kinds.edit]: editPolyline, [kinds.viewBackground]: makeView,
    [kinds.vertex]: editPolyline, [kinds.activate]: activate, [kinds.viewport]: makeViewport,
    [kinds.printStyle]: setPrintStyle};
