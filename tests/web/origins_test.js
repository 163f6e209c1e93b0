// Lines of edited macros and the ones that they were, and the lines that calls come of.

'use strict';

const assert = require('assert');
const {alignLines, callPlaces, giveLines} = require('./web');

const macro = ['var line1 = sketch.InsertLine(0, 0, 0, 4, 0, 0);', 'line1.put_Layer("Walls");', 'line1.put_Color(red);',
    '', 'var arc1 = sketch.InsertArc(1, 2, 0, 5, 1, 2);', 'arc1.put_Layer("Walls");', 'sketch.Update();',
    'sketch.Update();'];
const moved = (from, to) => {
    const lines = macro.slice();
    lines.splice(to, 0, ...lines.splice(from, 1));
    return lines;
};
const changed = (pattern, text) => macro.map(line => line.replace(pattern, text));
const replaced = (at, count, ...lines) => [...macro.slice(0, at), ...lines, ...macro.slice(at + count)];

for (const [what, edited, wanted] of [
    ['unchanged', macro, [1, 2, 3, 4, 5, 6, 7, 8]],
    ['a literal', changed('4, 0, 0', '4, 1, 0'), [1, 2, 3, 4, 5, 6, 7, 8]],
    ['all literals', changed(/\(.*\)/, '(9)'), [1, 2, 3, 4, 5, 6, 7, 8]],
    ['all lines', macro.map((line, i) => 'other' + i), [1, 2, 3, 4, 5, 6, 7, 8]],
    ['nothing left', [], []],
    ['a line far above a change', ['first();', ...changed('1, 2)', '1, 3)')], [0, 1, 2, 3, 4, 5, 6, 7, 8]],
    ['one deleted ahead of a change', replaced(1, 2, 'line1.put_Color(blue);'), [1, 3, 4, 5, 6, 7, 8]],
    ['two swapped', moved(1, 2), [1, 3, 2, 4, 5, 6, 7, 8]],
    ['one moved behind changes', moved(0, 5).map(line => line.replace('"Walls"', '"Outer"')), [2, 3, 4, 5, 6, 1, 7, 8]],
    ['one between two changed', replaced(1, 2, 'line1.put_Layer("0");', 'line1.Explode();', 'line1.put_Color(blue);'),
        [1, 2, 0, 3, 4, 5, 6, 7, 8]],
    ['two around calls that only the order tells apart',
        replaced(6, 2, 'go();', 'sketch.Update(1);', 'sketch.Update(2);', 'stop();'), [1, 2, 3, 4, 5, 6, 0, 7, 8, 0]],
    ['another variable in a loop', replaced(0, 1, 'for (;;) {', '    let one = sketch.InsertLine(i, 0, 0);', '}'),
        [0, 1, 0, 2, 3, 4, 5, 6, 7, 8]],
    ['a declaration apart', replaced(0, 1, 'var line1;', 'line1 = sketch.InsertLine(1);'), [0, 1, 2, 3, 4, 5, 6, 7, 8]],
    ['another call', changed('InsertArc', 'InsertCircle'), [1, 2, 3, 4, 5, 6, 7, 8]],
    ['equal lines, one less', replaced(7, 1), [1, 2, 3, 4, 5, 6, 7]],
    ['equal lines, one more', replaced(8, 0, 'sketch.Update();'), [1, 2, 3, 4, 5, 6, 7, 8, 0]],
    ['lines that were written once and are there twice',
        replaced(4, 0, 'line1.put_Color(red);', 'arc1.put_Layer("Walls");'), [1, 2, 3, 4, 0, 0, 5, 6, 7, 8]],
]) {
    assert.deepStrictEqual(alignLines(macro, edited), [0, ...wanted], what);
}

// Lines between others, apart by bars.
for (const [written, edited, wanted] of [
    ['a|p(1)|p(1)|b', 'z|a|p(9)|p(1)|p(1)|b|y', [0, 1, 0, 2, 3, 4, 0]],
    ['a|b|c', 'a|x|y|z|c', [1, 0, 0, 0, 3]],
    ['x|a|x|b|x|c', 'a|x|b|x|c|x', [2, 3, 4, 5, 6, 0]],
    ['m.put(1)|n.put(1)', 'x()|y()|n.put(2)|o.put(3)|z()', [0, 0, 2, 0, 0]],
    ['var m = s.Put(1)|var n = s.Put(1)', 'x()|y()|n = s.Put(2)|s.Put(3)|z()', [0, 0, 2, 0, 0]],
]) {
    assert.deepStrictEqual(alignLines(written.split('|'), edited.split('|')), [0, ...wanted], edited);
}

// Macros of large drawings, of which every second line or all were changed, or all put upside down.
{
    const of = text => Array.from({length: 40000}, (_, i) => text(i));
    const written = of(i => 'sketch.InsertPoint(' + i + ', 0, 0);');
    const straight = [0, ...of(i => i + 1)];
    const raised = of(i => 'sketch.InsertPoint(' + i + ', 0, 1);');
    assert.deepStrictEqual(alignLines(written, of(i => (i % 2 ? written : raised)[i])), straight);
    assert.deepStrictEqual(alignLines(written, raised), straight);
    assert.deepStrictEqual(alignLines(written, of(i => 'point' + i)), straight);
    assert.deepStrictEqual(alignLines(written, written.slice().reverse()), [0, ...straight.slice(1).reverse()]);
}

const names = new Set(['Insert', 'Move', 'put_Color']);
for (const [text, wanted] of [
    ['', []],
    ['a.Insert(1);\n\nb.Move (2);\na.Other(3); Insert(4); a.Insert;', ['Insert 1', 'Move 3']],
    ['a.Insert(1).put_Color(b.Move(2)); a.Insert(3);', ['Insert 1', 'put_Color 1', 'Move 1', 'Insert 1']],
    ['a.Insert(".Move(1)", \'.Move(2)\'); // .Move(3)\n// a.Move(4);', ['Insert 1']],
    ['a.Insert("\\".Move(1)", "//"); b.Move(2);', ['Insert 1', 'Move 1']],
]) {
    assert.deepStrictEqual(callPlaces(text, names).map(place => place.name + ' ' + place.line), wanted, text);
}

for (const [what, text, ran, wanted] of [
    ['straight on', 'abab', 'abab', [1, 2, 3, 4]],
    ['a condition passes two over', 'abcd', 'ad', [1, 4]],
    ['a loop', 'abc', 'abababc', [1, 2, 1, 2, 1, 2, 3]],
    ['a loop over equal calls', 'aab', 'aaaab', [1, 2, 2, 2, 3]],
    ['a loop that goes on behind what it passed over', 'abcb', 'acab', [1, 3, 1, 4]],
    ['none of its name', 'ab', 'axb', [1, null, 2]],
]) {
    const calls = [...ran].map(name => ({name: name}));
    giveLines(calls, [...text].map((name, i) => ({name: name, line: i + 1})));
    assert.deepStrictEqual(calls.map(call => call.line), wanted, what);
}
