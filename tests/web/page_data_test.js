// The data of a page: what is read back from its islands, and its state and address.

'use strict';

const assert = require('assert');
const zlib = require('zlib');
const {packedColumns, islandOf, bytesOf, dataOf, columnsOf, inflated, bytesOfBase64, Lines, LineMap, repairedLines,
    editedHunks, editedMap, State, fragmentOf, changesOfFragment, handleText, keyOfHandleText, firstView, rowsOfAction,
    drawnObject, HandleNames, rangesOfStep, linesInWords, nothingChosen} = require('./page');

const plain = lines => Array.from({length: lines.count}, (_, i) => lines.line(i));

async function testColumns() {
    const numbers = {a: ['u8', [1, 2, 3]], b: ['d32', [5, -1, 2147483647, -2147483648, 0]], c: ['u16', [65535]],
        d: ['f64', [123456789.12345679, -0.5]], e: ['u32', [4294967295]], f: ['i32', []]};
    const {bytes, layout} = packedColumns(numbers);
    const pieces = islandOf(bytes, 5);
    assert.ok(pieces.length > 3);
    const read = columnsOf(await inflated(pieces.map(bytesOfBase64)), layout);
    for (const name of Object.keys(numbers)) {
        assert.deepStrictEqual(Array.from(read[name]), numbers[name][1], name);
    }
    assert.throws(() => columnsOf(new Uint8Array(bytes.subarray(0, 40)), layout), /column "d" is not complete/);
    assert.strictEqual((await inflated([new Uint8Array(0)])).length, 0);
    await assert.rejects(inflated([new Uint8Array(zlib.deflateSync(bytes)).subarray(0, 20)]));
}

function testLines() {
    for (const [text, wanted] of [['', []], ['a', ['a']], ['a\n', ['a']], ['\n', ['']],
        ['a\r\n\r\nb\r', ['a', '', 'b']], ['é😀\n\nx\n', ['é😀', '', 'x']], ['\ufeff<html>\nb', ['<html>', 'b']]]) {
        const lines = new Lines(bytesOf(text));
        assert.deepStrictEqual(plain(lines), wanted, JSON.stringify(text));
        assert.strictEqual(lines.text().replace(/^\ufeff/, ''), text.replace(/^\ufeff/, ''));
    }
    const lines = new Lines(bytesOf('ab\ncd\n\nef'));
    assert.deepStrictEqual([0, 2, 3, 5, 6, 7, 8].map(offset => lines.lineAt(offset)), [0, 0, 1, 1, 2, 3, 3]);
}

function testRepair() {
    const recorded = new Lines(bytesOf('a\nb\nc\nd'));
    for (const [hunks, added, wanted] of [
        [[], '', 'a\nb\nc\nd'],
        [[{recorded: [1, 0], repaired: [1, 1]}], 'x\n', 'x\na\nb\nc\nd'],
        [[{recorded: [2, 2], repaired: [2, 0]}], '', 'a\nd'],
        [[{recorded: [1, 1], repaired: [1, 2]}, {recorded: [3, 1], repaired: [4, 1]},
            {recorded: [5, 0], repaired: [6, 1]}], 'A\nA2\nC\ne', 'A\nA2\nb\nC\nde']
    ]) {
        assert.strictEqual(repairedLines(recorded, hunks, new Lines(bytesOf(added))).text(), wanted);
    }
}

function testMap() {
    const map = new LineMap({lines: [3, 1, 2, 1, 4], step: [-1, 2, 1, 2, -1], part: [0, 2, 3, 3, 0]});
    assert.deepStrictEqual(map.rangeAt(1), {first: 1, last: 3, step: -1, part: 'frame'});
    assert.deepStrictEqual([4, 5, 6, 7, 8, 11].map(line => map.rangeAt(line).step), [2, 1, 1, 2, -1, -1]);
    assert.strictEqual(map.rangeAt(0), null);
    assert.strictEqual(map.rangeAt(12), null);
    assert.deepStrictEqual(map.rangesOf(2).map(range => [range.first, range.last]), [[4, 4], [7, 7]]);
    assert.deepStrictEqual(map.rangesOf(7), []);
    assert.strictEqual(linesInWords(map.rangesOf(2)), 'lines 4, 7');
    assert.strictEqual(linesInWords([{first: 5, last: 6}, {first: 4, last: 4}]), 'lines 4 to 6');
    assert.strictEqual(linesInWords([{first: 5, last: 5}]), 'line 5');
}

function testEdited() {
    const written = new Lines(bytesOf('a\nb\nc\nd\n'));
    const map = new LineMap({lines: [1, 2, 1], step: [-1, 4, 5], part: [0, 3, 3]});
    for (const [text, hunks, steps] of [
        ['a\nb\nc\nd\n', '', '-1 4 4 5'], ['a\nB\nc\nD\n', '2,1 2,1 4,1 4,1', '-1 4 4 5'],
        ['a\nb\nx\ny\nc\nd\n', '3,0 3,2', '-1 4 -1 -1 4 5'], ['a\nd\n', '2,2 2,0', '-1 5'], ['', '1,4 1,0', ''],
        ['a\nX\nd\n', '2,2 2,1', '-1 -1 5']
    ]) {
        const edited = new Lines(bytesOf(text));
        const found = editedHunks(written, edited);
        assert.strictEqual(found.map(hunk => hunk.recorded + ' ' + hunk.repaired).join(' '), hunks, text);
        const moved = editedMap(map, found);
        const stepsOfLines = Array.from({length: edited.count}, (_, i) => moved.rangeAt(i + 1).step);
        assert.strictEqual(stepsOfLines.join(' '), steps, text);
    }
}

const line = JSON.stringify({command: {name: 'OUTER', actions: [
    {added: {class: 'AcDbLine', handle: '2F', properties: [{tag: 'Start X', value: 0}, {tag: 'Start Y', value: -1.5},
        {tag: 'Layer', value: {id: '10'}}, {tag: 'Width', value: 4, index: {int: 2}}]}},
    {command: {name: 'INNER', actions: [{modified: {class: 'AcDbLine', handle: 'FFFFFFFFFFFFFFFE',
        properties: [{tag: 'End X', value: 2, old: 1}, {tag: 'Name', value: 'é'}]}}]}},
    {null: null}]}});
const recording = ['{"recording":{"version":1}}',
    '{"object":{"class":"AcDbLayerTableRecord","handle":"010","name":"Walls"}}', line,
    '{"selection":{"objects":[]}}'].join('\n');

const testData = () => dataOf({
    recording: recording,
    steps: [{kind: 'command', line: 3, name: 1}, {kind: 'added', line: 3, parent: 0, child: 0, cls: 0,
        handles: ['A', '2F']}, {kind: 'command', line: 3, parent: 0, child: 1, name: 2},
    {kind: 'modified', line: 3, parent: 2, child: 0, cls: 0, handles: ['FFFFFFFFFFFFFFFE']},
    {kind: 'null', line: 3, parent: 0, child: 2}, {kind: 'selection', line: 4, handles: ['30', '2F']}],
    objects: [{handle: 'A', cls: 1, added: 1}, {handle: '2F', cls: 0, added: 1}, {handle: 'FFFFFFFFFFFFFFFE', cls: 0},
        {handle: '30', cls: 0}, {handle: '10', cls: 2}],
    islands: {'macro.cpp': 'one\ntwo\nthree\n', 'repair.cpp.text': '2\n', 'macro.vba': 'mended\n',
        'repair.cpp': {recordedFirst: ['d32', [2]], recordedCount: ['u32', [1]], repairedFirst: ['d32', [2]],
            repairedCount: ['u32', [1]], step: ['d32', [3]]},
        'map.cpp.recorded': {lines: ['u32', [1, 1, 1]], step: ['d32', [0, 3, 1]], part: ['u8', [1, 3, 3]]}},
    index: {names: ['', 'OUTER', 'INNER'], classes: [{name: 'AcDbLine', words: 'Line'}, {name: 'AcDbArc', words: 'Arc'},
        {name: 'AcDbLayerTableRecord', words: 'Layer'}],
    notes: [{kind: 'loss', step: 1, line: 3, path: '', what: 'property "A "b" c" of AcDbLine 2F', reason: 'r'}],
    targets: [{name: 'cpp', title: 'C++', file: 'a.cpp', forms: {
        recorded: {status: 0, error: '', notes: [0], faults: [{lines: [1, 2], mended: true}], hasMap: true,
            text: 'macro.cpp'},
        repaired: {status: 0, error: '', notes: [0], faults: [], hasMap: false, text: 'macro.cpp'}}},
    {name: 'vba', title: 'VBA', file: 'a.bas', forms: {recorded: {status: 3, error: 'why', notes: [], faults: []},
        repaired: {status: 0, error: '', notes: [], faults: [], hasMap: false, text: 'macro.vba'}}}]}
});

async function testSteps() {
    const data = await testData();
    assert.deepStrictEqual([0, 1, 2, 3, 4, 5].map(step => data.pathOf(step)), ['', 'command.actions[0]',
        'command.actions[1]', 'command.actions[1].command.actions[0]', 'command.actions[2]', '']);
    for (let step = 0; step < data.steps.count; ++step) {
        assert.strictEqual(data.stepAt(data.steps.line[step], data.pathOf(step)), step);
    }
    assert.strictEqual(data.stepAt(3, 'command.actions[1].command.actions[0].modified.properties[0]'), 3);
    assert.strictEqual(data.stepAt(3, 'command.actions[10]'), 0);
    assert.strictEqual(data.stepAt(2, ''), -1);
    assert.deepStrictEqual([0, 3, 5].map(step => data.commandOf(step)), [0, 0, 5]);
    assert.strictEqual(data.action(3).modified.handle, 'FFFFFFFFFFFFFFFE');
    assert.deepStrictEqual(data.action(4), {null: null});
    // The one of its class, not one that is made beside it.
    assert.deepStrictEqual([0, 1, 3, 4, 5].map(step => data.objectOfStep(step)), [-1, 1, 2, -1, 3]);
    assert.deepStrictEqual([0, 1, 2, 3, 4].map(object => data.stepOfObject(object)), [1, 1, 3, 5, -1]);
    assert.deepStrictEqual([1, 3, 5].map(step => data.handleText(step)), ['2F', 'FFFFFFFFFFFFFFFE', '']);
    for (const [text, wanted] of [['2f', 1], ['FFFFFFFFFFFFFFFE', 2], ['FFFFFFFFFFFFFFFF', -1], ['', -1], ['xyz', -1],
        ['00000000000000002F', -1], ['1FFFFFFFFFFFFF', -1]]) {
        assert.strictEqual(data.objectByHandle(text), wanted, text);
    }
    assert.strictEqual(handleText(1, 15), '10000000F');
    assert.strictEqual(typeof keyOfHandleText('FFFFFFFFFFFFFFFE'), 'string'); // more than a number tells
    assert.strictEqual(data.notes[0].property, 'A "b" c');
}

async function testMacros() {
    const data = await testData();
    assert.deepStrictEqual(plain(await data.macro('cpp', 'recorded')), ['one', 'two', 'three']);
    assert.deepStrictEqual(plain(await data.macro('cpp', 'repaired')), ['one', '2', 'three']);
    assert.deepStrictEqual(plain(await data.macro('vba', 'recorded')), []);
    assert.deepStrictEqual(plain(await data.macro('vba', 'repaired')), ['mended']);
    assert.strictEqual(await data.map('cpp', 'repaired'), null);
    const map = await data.map('cpp', 'recorded');
    assert.deepStrictEqual([0, 1, 2, 4].map(step => linesInWords(rangesOfStep(data, map, step))),
        ['lines 1 to 3', 'line 3', 'line 2', 'lines ']);
    assert.deepStrictEqual(firstView(data), {target: 'cpp', form: 'repaired'});
    assert.deepStrictEqual([data.faultyForm('cpp', 'repaired'), data.faultyForm('vba', 'repaired')],
        ['recorded', 'repaired']);
    await assert.rejects(data.island('nothing'), /does not have the data "nothing"/);
}

async function testValues() {
    const data = await testData();
    const names = new HandleNames(data);
    const rows = step => rowsOfAction(data.action(step), handle => names.of(handle)).map(row =>
        [row.name, row.old, row.text].filter(text => typeof text === 'string').join(' | '));
    assert.deepStrictEqual(rows(1), ['Start | (0, -1.5)', 'Layer | “Walls”', 'Width [2] | 4']);
    assert.deepStrictEqual(rows(3), ['End X | 1 | 2', 'Name | “é”']);
    assert.strictEqual(drawnObject(data, '10').name, 'Walls');
    assert.strictEqual(drawnObject(data, '2F'), null); // a step's, not the drawing's
    const text = value => rowsOfAction({property: {tag: 'T', value: value}}, handle => 'H' + handle)[0].text;
    for (const [value, wanted] of [[{int: 3}, '3'], [null, 'nothing'], [{color: 'bylayer'}, 'by layer'],
        [{color: {rgb: [1, 2, 3]}}, 'rgb 1, 2, 3'.replace(/, /g, ' ')], [{point: [1, 2, 0.1]}, '(1, 2, 0.1)'],
        [{collection: {chosen: 1, elements: [{tag: 0, value: 'No'}, {tag: 1, value: 'Yes'}]}}, '“Yes”'],
        [{collection: {elements: [{tag: '2F', value: 0}, {tag: '30', value: 0}]}}, '“2F”, “30”'],
        [{transparency: {method: 2, alpha: 7}}, 'alpha 7'], [{constructor: 1}, '{"constructor":1}'], ['x'.repeat(3000),
            '“' + 'x'.repeat(2000) + '… and 1,000 more characters”']]) {
        assert.strictEqual(text(value), wanted);
    }
}

async function testAddress() {
    const data = await testData();
    const values = changes => Object.assign({step: data.steps.count, chosen: nothingChosen, target: 'cpp',
        form: 'repaired'}, changes);
    for (const [changes, wanted] of [
        [{}, 'target=cpp'],
        [{step: 2, chosen: {step: 1, object: 1}}, 'step=2&sel=2F&target=cpp'],
        [{chosen: {step: 5, object: 3}, form: 'differences'}, 'sel=30&target=cpp&form=diff'],
        [{chosen: {step: 5, object: 1}}, 'sel=s5&target=cpp'],
        [{chosen: {step: -1, object: 4}}, 'sel=10&target=cpp'],
        [{chosen: {step: 0, object: -1}, target: 'javascript'}, 'sel=s0&target=js']
    ]) {
        assert.strictEqual(fragmentOf(values(changes), data), wanted);
    }
    for (const [fragment, wanted] of [
        ['#step=2&sel=2F&target=vba&form=diff',
            {step: 2, chosen: {step: 1, object: 1}, target: 'vba', form: 'differences'}],
        ['#sel=s5', {chosen: {step: 5, object: 3}}], ['step=0', {step: 0}],
        ['#step=7&sel=s6&sel=FF&target=js&form=__proto__', {}], ['#step=-1&step=1e3&step=NaN&step=', {}],
        ['#%%%&=&&&sel&step=99999999999999999999', {}], ['#target=constructor&form=constructor&sel=constructor', {}],
        ['#<img src=x>', {}], ['', {}]
    ]) {
        assert.deepStrictEqual(changesOfFragment(fragment, data), wanted, fragment);
    }
}

function testState() {
    const state = new State();
    const heard = [];
    state.on(['target'], (values, source) => {
        heard.push('first ' + values.target + ' ' + source);
        if (values.target === 'a') {
            state.set({form: 'recorded', target: 'b'}, 'inner');
        }
    });
    state.on('form', values => heard.push('form ' + values.form));
    state.on(['target', 'chosen'], values => heard.push('second ' + values.target));
    state.set({target: 'a'}, 'outer');
    assert.deepStrictEqual(heard, ['first a outer', 'second b', 'first b inner', 'form recorded', 'second b']);
    heard.length = 0;
    state.set({chosen: {step: -1, object: -1}, target: 'b'});
    assert.deepStrictEqual(heard, []);
    state.set({chosen: {step: 1, object: -1}});
    assert.deepStrictEqual(heard, ['second b']);
    state.on(['step'], () => { throw new Error('of a pane'); });
    assert.throws(() => state.set({step: 3}), /of a pane/);
    heard.length = 0;
    state.set({target: 'c'}); // one that fails does not silence the others
    assert.deepStrictEqual(heard, ['first c ', 'second c']);
}

(async () => {
    await testColumns();
    testLines();
    testRepair();
    testMap();
    testEdited();
    await testSteps();
    await testMacros();
    await testValues();
    await testAddress();
    testState();
})().catch(error => {
    console.error(error);
    process.exitCode = 1;
});
