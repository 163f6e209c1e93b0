// Which rows of a list are in sight, and what is found, filtered and counted.

'use strict';

const assert = require('assert');
const {Heights, Scale, ByteSearch, Lines, linesWith, stepsWith, searchAll, shownSteps, Findings, LineMap, badgesOf,
    dataOf, bytesOf} = require('./page');

function testHeights() {
    for (const count of [0, 1, 2, 3, 7, 8, 9, 1000]) {
        const heights = new Heights(count, 24, count > 1 ? [[1, 11]] : []);
        const plain = new Array(count).fill(24).fill(11, 1, 2);
        for (let i = 0; i < count; i += 3) {
            plain[i] = 19 + i % 5 * 40.5;
            heights.set(i, plain[i]);
        }
        let top = 0;
        plain.forEach((height, row) => {
            assert.strictEqual(heights.top(row), top);
            assert.strictEqual(heights.at(top), row);
            assert.strictEqual(heights.at(top + height - 0.25), row);
            top += height;
        });
        assert.strictEqual(heights.top(count), top);
        assert.strictEqual(heights.total, top);
        assert.strictEqual(heights.at(-5), 0);
        assert.strictEqual(heights.at(top + 1000), Math.max(0, count - 1));
    }
}

function testScale() {
    const small = new Scale(5000, 600);
    assert.deepStrictEqual([small.height, small.offset(4400), small.barTop(123)], [5000, 4400, 123]);
    const empty = new Scale(100, 600);
    assert.deepStrictEqual([empty.offset(50), empty.barTop(50)], [0, 0]);
    const huge = new Scale(40e6, 600);
    assert.strictEqual(huge.height, 10e6);
    assert.strictEqual(huge.offset(10e6 - 600), 40e6 - 600); // the end can be reached
    assert.ok(Math.abs(huge.offset(huge.barTop(12345678)) - 12345678) < 1e-6);
}

function testBytes() {
    const text = 'Abc abcabd ÄÖ aBd 😀\r\nab\n\nABD abd';
    const bytes = bytesOf(text);
    const fold = one => one.replace(/[A-Z]/g, letter => letter.toLowerCase());
    for (const word of ['abd', 'ABC', 'a', 'ÄÖ', '😀', ' ', 'abd ', 'nothing', 'd😀']) {
        const search = new ByteSearch(word);
        const found = [];
        for (let at = search.next(bytes, 0); at >= 0; at = search.next(bytes, at + 1)) {
            found.push(at);
        }
        const wanted = [];
        for (let at = fold(text).indexOf(fold(word)); at >= 0; at = fold(text).indexOf(fold(word), at + 1)) {
            wanted.push(Buffer.byteLength(text.slice(0, at)));
        }
        assert.deepStrictEqual(found, wanted, word);
    }
    const lines = new Lines(bytes);
    assert.deepStrictEqual(linesWith(lines, 'abd'), {found: [0, 3], count: 2});
    assert.deepStrictEqual(linesWith(lines, 'abd', 1), {found: [0], count: 2});
    assert.deepStrictEqual(linesWith(lines, ''), {found: [], count: 0});
}

// A circle with a text, changed later, and a command within another.
const data = () => dataOf({
    recording: 'x',
    steps: [{kind: 'command', line: 1, name: 1}, {kind: 'added', line: 1, parent: 0, child: 0, cls: 0, layer: 0,
        handles: ['A1']}, {kind: 'added', line: 1, parent: 0, child: 1, cls: 1, layer: 1, handles: ['A2']},
    {kind: 'command', line: 2, name: 2}, {kind: 'command', line: 2, parent: 3, child: 0, name: 1},
    {kind: 'modified', line: 2, parent: 4, child: 0, cls: 0, handles: ['A1']}, {kind: 'sysvar', line: 3, name: 3}],
    objects: [{handle: 'A1', cls: 0, added: 1}, {handle: 'A2', cls: 1, added: 2, layer: 1}],
    texts: ['Kitchen sink'], geometry: [{shape: 1, object: 0, numbers: [0, 0, 1, 0, 6]},
        {shape: 4, object: 1, numbers: [0, 0, 2, 0, 0, 10, 0]}],
    index: {names: ['', 'DRAW', 'EDIT', 'CVPORT'], layers: [{name: '0'}, {name: 'Walls'}],
        classes: [{name: 'AcDbCircle', words: 'Circle'}, {name: 'AcDbText', words: 'Text'}],
        notes: [{kind: 'loss', step: 2, what: 'property "W" of AcDbText A2', reason: 'no statement'},
            {kind: 'assumption', step: 6, what: 'x', reason: 'why'}, {kind: 'loss', step: -1, what: 'y', reason: 'z'}],
        targets: ['cpp', 'vba'].map((name, i) => ({name: name, title: name, file: name, forms: {
            recorded: {status: 0, error: '', notes: [0, 1, 2].slice(i),
                faults: [{reason: 'f', mended: true, lines: [2, 3]},
                    {reason: 'g', mended: i === 0, lines: [9]}], text: 'm', hasMap: false},
            repaired: {status: i * 3, error: 'e', notes: [0, 1, 2].slice(i), faults: [], text: 'm', hasMap: false}}}))}
});

async function testFilter() {
    const one = await data();
    const hits = text => [...stepsWith(one, text)].map((shown, step) => shown ? step : -1).filter(step => step >= 0);
    for (const [text, wanted] of [['', [0, 1, 2, 3, 4, 5, 6]], ['draw', [0, 1, 2, 3, 4, 5]], ['edit', [3, 4, 5]],
        ['circle', [0, 1, 3, 4, 5]], ['AcDbText', [0, 2]], ['walls', [0, 2]], ['kitchen', [0, 2]], ['a2', [0, 2]],
        ['edit circle', [3, 4, 5]], ['edit walls', []], ['cvp', [6]], ['modified', [3, 4, 5]], ['(', []]]) {
        assert.deepStrictEqual(hits(text), wanted, text);
    }
    const map = new LineMap({lines: [1, 2, 9], step: [-1, 1, 5], part: [0, 3, 3]});
    const findings = new Findings(one, 'cpp', 'repaired', map);
    assert.deepStrictEqual(findings.of(1), [{kind: 'faults', word: 'fault, repaired', text: 'f'}]);
    assert.deepStrictEqual(findings.of(2), [{kind: 'lost', word: 'partly lost', text: 'property “W”, no statement'}]);
    assert.deepStrictEqual([...findings.steps()], [1, 2, 5, 6]);
    const shown = (filter, chip) => Array.from(shownSteps(one, filter, chip, findings) || ['all']);
    assert.deepStrictEqual([shown('', 'all'), shown('', 'lost'), shown('', 'assumed'), shown('', 'faults'),
        shown('', 'changes'), shown('circle', 'faults'), shown('edit', 'lost')],
    [['all'], [0, 2], [6], [0, 1, 3, 4, 5], [3, 4, 5], [0, 1, 3, 4, 5], []]);
}

async function testSearch() {
    const one = await data();
    const lines = new Lines(bytesOf('a circle\nCIRCLE\nb\n'));
    assert.deepStrictEqual(searchAll(one, lines, ' circle '), {objects: {found: [0], count: 1},
        steps: {found: [5], count: 1}, lines: {found: [0, 1], count: 2}});
    assert.deepStrictEqual(searchAll(one, lines, 'text walls').objects.found, [1]);
    assert.deepStrictEqual(searchAll(one, lines, '  ').lines.count, 0);
}

async function testBadges() {
    const one = await data();
    const badges = (target, form) => badgesOf(one, target, form).map(badge => badge.text);
    assert.deepStrictEqual(badges('cpp', 'repaired'), ['2 losses', '1 assumed', '3 faults here, all repaired']);
    assert.deepStrictEqual(badges('cpp', 'recorded')[0], '2 losses here');
    assert.deepStrictEqual(badges('vba', 'recorded'), ['1 loss here', '1 assumed', '3 faults here, 2 repaired']);
    assert.deepStrictEqual(badges('vba', 'repaired'), ['conversion failed']);
}

(async () => {
    testHeights();
    testScale();
    testBytes();
    await testFilter();
    await testSearch();
    await testBadges();
})().catch(error => {
    console.error(error);
    process.exitCode = 1;
});
