// How code and its differences are shown: nothing of a line is lost or mistaken for another's.

'use strict';

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const {Painter, DifferenceRows, differenceKinds, changedParts, withMarks, piecesOf, visibleText, iconNameOf, iconPaths}
    = require('./page');

const scenarios = path.join(__dirname, '../scenarios');
const files = {cpp: 'cpp.cpp', csharp: 'csharp.cs', javascript: 'javascript.html', vbnet: 'vbnet.vb',
    cppcom: 'cppcom.cpp', vba: 'vba.bas'};

const text = pieces => pieces.map(piece => piece.text).join('');

function painted(target, line) {
    return new Painter(target).pieces(line).filter(piece => piece.kind).map(piece => piece.kind + ' ' + piece.text);
}

function testPainter() {
    for (const [target, line, wanted] of [
        ['cpp', 'auto a = b->Insert(1.5e-7, L"x\\"y"); // c "d', ['keyword auto', 'call Insert', 'number 1.5e-7',
            'string L"x\\"y"', 'comment // c "d']],
        ['cpp', '#include "a//b.h"', ['keyword #include', 'string "a//b.h"']],
        ['cppcom', 'x = 0xFFu;', ['number 0xFFu']],
        ['csharp', 'string s = @"C:\\"; f(s);', ['keyword string', 'string @"C:\\"', 'call f']],
        ['vba', 'Dim x As Double \' "no string"', ['keyword Dim', 'keyword As', 'keyword Double',
            'comment \' "no string"']],
        ['vba', 'a.Text = "say ""hi"" \'x"', ['call Text', 'string "say ""hi"" \'x"']],
        ['vbnet', 'dim y = &HFF', ['keyword dim', 'number &HFF']],
        ['javascript', 'var é1 = mSkMgr.InsertLine(-0.5);', ['keyword var', 'call InsertLine', 'number 0.5']],
        ['javascript', '<!-- a --> "open', ['comment <!-- a -->', 'string "open']],
        ['unknown', 'x', []]
    ]) {
        assert.deepStrictEqual(painted(target, line), wanted, line);
    }
    const long = 'f("' + 'x'.repeat(100000) + '");';
    assert.strictEqual(text(new Painter('cpp').pieces(long)), long);
}

// All lines of all macros that the tests know.
function testAllLines() {
    for (const target of Object.keys(files)) {
        const painter = new Painter(target);
        let count = 0;
        for (const scenario of fs.readdirSync(scenarios)) {
            const file = path.join(scenarios, scenario, 'expected', files[target]);
            const lines = fs.existsSync(file) ? fs.readFileSync(file, 'utf8').split('\n') : [];
            for (const line of lines) {
                assert.strictEqual(text(painter.pieces(line)), line);
                ++count;
            }
        }
        assert.ok(count > 1000, target);
    }
}

function testChanges() {
    const parts = (one, other) => changedParts(one, other).map((ranges, side) =>
        ranges.map(([from, to]) => [one, other][side].slice(from, to)));
    for (const [one, other, wanted] of [
        ['A1 = f(A1);', 'var A14 = f(A14);', [['A1', 'A1'], ['var A14', 'A14']]],
        ['same', 'same', [[], []]], ['', 'new', [[], ['new']]], ['    a', '  a', [[], []]],
        ['x = "😀";', 'x = "😁";', [['😀'], ['😁']]], ['a, b, c', 'a, c', [['b,'], []]]
    ]) {
        assert.deepStrictEqual(parts(one, other), wanted, one);
    }
    const long = Array.from({length: 1000}, (_, i) => 'w' + i).join(' ');
    assert.deepStrictEqual(parts('a ' + long + ' z', 'b ' + long.replace(/w/g, 'v') + ' z')[0], ['a ' + long]);

    const line = 'var A14 = f(A14);';
    const pieces = withMarks(new Painter('javascript').pieces(line), changedParts('A1 = f(A1);', line)[1]);
    assert.strictEqual(text(pieces), line);
    assert.deepStrictEqual(pieces.filter(piece => piece.isMarked).map(piece => piece.text), ['var', ' A14', 'A14']);
}

const kindNames = Object.keys(differenceKinds);

function rowsIn(rows) {
    return Array.from({length: rows.count}, (_, i) => rows.row(i)).map(row =>
        [kindNames[row.kind], row.recorded, row.repaired, row.count].join(' '));
}

function testRows() {
    const hunks = [{recorded: [5, 2], repaired: [5, 1]}, {recorded: [20, 0], repaired: [19, 2]}];
    const rows = new DifferenceRows(hunks, 30, 31);
    assert.deepStrictEqual(rowsIn(rows), ['folded 1 1 2', 'equal 3 3 1', 'equal 4 4 1', 'removed 5 5 1', 'added 5 5 1',
        'removed 6 0 1', 'equal 7 6 1', 'equal 8 7 1', 'folded 9 8 9', 'equal 18 17 1', 'equal 19 18 1', 'added 0 19 1',
        'added 0 20 1', 'equal 20 21 1', 'equal 21 22 1', 'folded 22 23 9']);
    assert.deepStrictEqual(rows.hunkRows, [3, 11]);
    // Each line of both texts once, in order, whatever is folded.
    for (const unfolded of [[], [9], [1, 9, 22]]) {
        const shown = new DifferenceRows(hunks, 30, 31, new Set(unfolded));
        let [recorded, repaired] = [1, 1];
        for (let i = 0; i < shown.count; ++i) {
            const row = shown.row(i);
            if (row.kind !== differenceKinds.added) {
                assert.strictEqual(row.recorded, recorded);
                recorded += row.count;
            }
            if (row.kind !== differenceKinds.removed) {
                assert.strictEqual(row.repaired, repaired);
                assert.strictEqual(shown.rowOfRepaired(row.repaired), i);
                assert.strictEqual(shown.rowOfRepaired(row.repaired + row.count - 1), i);
                repaired += row.count;
            }
        }
        assert.deepStrictEqual([recorded, repaired], [31, 32]);
    }
    assert.deepStrictEqual(rowsIn(new DifferenceRows([], 3, 3)), ['folded 1 1 3']);
    assert.deepStrictEqual(rowsIn(new DifferenceRows([], 0, 0)), []);
}

function testMarks() {
    for (const [given, wanted] of [['plain é 😀 日本', 'plain é 😀 日本'], ['a\u202eb', 'a‹RLO›b'], ['\u0000\u001b\n\t\u007f',
        '‹NUL›‹ESC›‹LF›‹TAB›‹DEL›'], ['\u200b\ufeff\u00ad', '‹ZWSP›‹BOM›‹SHY›'], ['\ud800x\udc00', '‹D800›x‹DC00›'],
    ['\u{e0041}\u2029', '‹E0041›‹PS›'], ['', '']]) {
        assert.strictEqual(visibleText(given), wanted);
    }
    assert.deepStrictEqual(piecesOf('\tx\u0007', true),
        [{text: '\tx'}, {sign: '‹BEL›', title: 'control character, U+0007'}]);
}

function testIcons() {
    for (const [name, wanted] of [['AcDbLine', 'line'], ['AcDb3PointAngularDimension', 'angle'], ['AcDbMText', 'text'],
        ['AcDbDimStyleTableRecord', 'style'], ['AcDbBlockReference', 'block'], ['AcDbPolyline', 'polyline'],
        ['AcDbRadialDimension', 'radius'], ['AcDbTable', 'table'], ['HostWeldSymbol', 'other'], ['', 'other']]) {
        assert.strictEqual(iconNameOf(name), wanted, name);
        assert.ok(iconPaths[wanted], wanted);
    }
}

testPainter();
testAllLines();
testChanges();
testRows();
testMarks();
testIcons();
