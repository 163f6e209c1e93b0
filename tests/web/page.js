// The scripts of a page, for tests in node, and islands as the program writes them.

'use strict';

const fs = require('fs');
const path = require('path');
const vm = require('vm');
const zlib = require('zlib');

const folder = path.join(__dirname, '../../src/view/page');
const scripts = fs.readFileSync(path.join(folder, 'scripts.list'), 'utf8').split('\n').filter(one => one);

for (const name of scripts) {
    vm.runInThisContext(fs.readFileSync(path.join(folder, name), 'utf8'), {filename: path.join(folder, name)});
}

const writers = {u8: [1, 'writeUInt8'], u16: [2, 'writeUInt16LE'], u32: [4, 'writeUInt32LE'], i32: [4, 'writeInt32LE'],
    f64: [8, 'writeDoubleLE']};

// Bytes and layout of columns {name: [type, numbers]}.
function packedColumns(columns) {
    const parts = [];
    const layout = [];
    let length = 0;
    for (const name of Object.keys(columns)) {
        const [type, given] = columns[name];
        const numbers = type !== 'd32' ? given : given.map((value, i) => value - (i ? given[i - 1] : 0) | 0);
        const [size, write] = writers[type === 'd32' ? 'i32' : type];
        const bytes = Buffer.alloc(Math.ceil(numbers.length * size / 8) * 8);
        numbers.forEach((value, i) => bytes[write](value, i * size));
        layout.push([name, type, numbers.length]);
        parts.push(bytes);
        length += bytes.length;
    }
    return {bytes: Buffer.concat(parts, length), layout: layout};
}

// The base64 texts of an island, in pieces of so many bytes.
function islandOf(bytes, piece = 1 << 20) {
    const packed = zlib.deflateSync(bytes);
    const pieces = [];
    for (let at = 0; at < packed.length; at += piece) {
        pieces.push(packed.subarray(at, at + piece).toString('base64'));
    }
    return pieces;
}

const bytesOf = text => new Uint8Array(Buffer.from(text));

// Data of a recording of steps {kind, line, parent, child, cls, name, layer, handles}, of objects {handle, cls, added,
// layer} and of primitives; islands are texts or columns by name, and `index` has members of that one.
async function dataOf({steps = [], objects = [], recording = '', index = {}, islands = {}, texts = [], geometry = []}) {
    const all = {};
    const layout = {};
    const add = (name, columns) => {
        const packed = packedColumns(columns);
        layout[name] = packed.layout;
        all[name] = islandOf(packed.bytes);
    };
    const handles = [].concat(...steps.map(step => step.handles || []));
    const column = (rows, key, otherwise) => rows.map(row => row[key] === undefined ? otherwise : row[key]);
    const kinds = ['command', 'added', 'modified', 'property', 'sysvar', 'interaction', 'selection', 'custom', 'null'];
    const low = list => list.map(handle => parseInt(handle.slice(-8), 16) | 0);
    const high = list => list.map(handle => parseInt(handle.slice(0, -8) || '0', 16));
    add('steps', {line: ['d32', column(steps, 'line', 1)], parent: ['d32', column(steps, 'parent', -1)],
        child: ['d32', column(steps, 'child', 0)], kind: ['u8', steps.map(step => kinds.indexOf(step.kind))],
        cls: ['u16', column(steps, 'cls', 65535)], name: ['u32', column(steps, 'name', 0)],
        layer: ['u16', column(steps, 'layer', 65535)],
        handles: ['u32', steps.map(step => (step.handles || []).length)]});
    add('stepHandles', {low: ['d32', low(handles)], high: ['u32', high(handles)]});
    const ofObjects = objects.map(object => object.handle);
    add('objects', {low: ['d32', low(ofObjects)], high: ['u32', high(ofObjects)],
        cls: ['u16', column(objects, 'cls', 0)], added: ['d32', column(objects, 'added', -1)],
        erased: ['d32', column(objects, 'erased', -1)],
        layer: ['u16', column(objects, 'layer', 0)],
        space: ['u16', column(objects, 'space', 0)],
        isDrawn: ['u8', column(objects, 'isDrawn', 1)], hasGeometry: ['u8', column(objects, 'hasGeometry', 1)],
        remark: ['u16', column(objects, 'remark', 0)]});
    add('geometry', {shape: ['u8', column(geometry, 'shape', 0)], object: ['d32', column(geometry, 'object', 0)],
        style: ['u16', column(geometry, 'style', 0)], space: ['u16', column(geometry, 'space', 0)],
        from: ['d32', column(geometry, 'from', -1)], until: ['d32', column(geometry, 'until', -1)],
        count: ['u32', geometry.map(one => one.numbers.length)],
        numbers: ['f64', [].concat(...geometry.map(one => one.numbers))]});
    for (const name of Object.keys(islands)) {
        if (typeof islands[name] === 'string') {
            all[name] = islandOf(bytesOf(islands[name]));
        } else {
            add(name, islands[name]);
        }
    }
    all.texts = islandOf(bytesOf(JSON.stringify(texts)));
    all.recording = islandOf(bytesOf(recording), 7);
    all.index = islandOf(bytesOf(JSON.stringify(Object.assign({version: '1.0.0', name: 'one', input: 'one.jsonl',
        lines: 1, counts: {}, spaces: [], firstSpace: 0, layers: [], styles: [], classes: [], names: [''], remarks: [],
        layerSwitches: [], spaceSwitches: [], notes: [], targets: [], layout: layout}, index))));
    const opened = await new page.Data(name => all[name] || null).open();
    await opened.openRecording();
    return opened;
}

const page = vm.runInThisContext(`({Data, Lines, LineMap, State, Heights, Scale, Painter, DifferenceRows, ByteSearch,
    columnsOf, inflated, bytesOfBase64, lastNotAbove, handleKey, handleText, keyOfHandleText, repairedLines,
    editedHunks, editedMap, piecesOf,
    visibleText, fragmentOf, changesOfFragment, changedParts, withMarks, linesWith, stepsWith, searchAll, shownSteps,
    Findings, rowsOfAction, rowsOfDrawn, drawnObject, HandleNames, linesInWords, rangesOfStep, LineRanges, badgesOf,
    countsInWords, firstView, formThere, stepWords, nothingChosen, iconNameOf, iconPaths, differenceKinds})`);

module.exports = Object.assign({packedColumns: packedColumns, islandOf: islandOf, bytesOf: bytesOf, dataOf: dataOf,
    scripts: scripts, folder: folder}, page);
