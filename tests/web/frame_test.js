// What runs a macro for the page: what it tells, and in which forms what was drawn otherwise.

'use strict';

const assert = require('assert');
const fs = require('fs');
const path = require('path');
const vm = require('vm');
const web = require('./web');

const folder = path.join(__dirname, '../../src/view/frame');
for (const name of fs.readFileSync(path.join(folder, 'scripts.list'), 'utf8').split('\n').filter(one => one)) {
    vm.runInThisContext(fs.readFileSync(path.join(folder, name), 'utf8'), {filename: path.join(folder, name)});
}
const {runJob, scriptLine, primitivesOf} = vm.runInThisContext('({runJob, scriptLine, primitivesOf})');

// Stacks of two engines: the operations of the library on top, what runs the macro below.
for (const [stack, line] of [
    ['ReferenceError: x is not defined|    at runMacro (about:srcdoc:26:13)|    at runScript (about:srcdoc:44:16)', 26],
    ['Error|    at Model.call (about:srcdoc:300:1)|    at SketchManager.libraryCall [as InsertLine] (about:srcdoc:9:4)|'
        + '    at draw (about:srcdoc:7:3)|  at runMacro (about:srcdoc:26:13)|    at runScript (about:srcdoc:44:16)', 7],
    ['call@about:srcdoc:300:1|libraryCall@about:srcdoc:93:40|runMacro@about:srcdoc:9:3|runScript@about:srcdoc:4:6', 9],
    ['RangeError: Maximum call stack size exceeded|    at runScript (about:srcdoc:44:16)', null],
    ['', null],
]) {
    assert.strictEqual(scriptLine(stack.split('|').join('\n')), line, stack);
}

const head = ['<html>', '<script type="text/javascript">', 'function runMacro() {',
    'var app = new ijScriptManager().getApplication(), prompts = app.GetCommandMessage();',
    'var sketch = app.GetActiveDocument().GetModel().GetSketchManager();'];
const foot = ['}', '</script>', '</html>'];

// What is told of a macro of these statements, one an action.
function run(actions, statements, changes = {}) {
    const map = {ranges: statements.map((_, i) => ({lines: [head.length + 1 + i, head.length + 1 + i], line: i + 1,
        path: '', handles: ['added' in actions[i] ? actions[i].added.handle : '0'], kind: 'insertion'}))};
    const macro = [...head, ...statements, ...foot].join('\n');
    const news = [];
    const runHere = ({text, before}, globals) => {
        assert.strictEqual(before, 1);
        const context = vm.createContext(Object.assign({}, globals));
        vm.runInContext(text, context, {filename: 'macro'});
        try {
            context.runMacro();
            return null;
        } catch (error) {
            return {line: Number(/macro:(\d+)/.exec(error.stack)[1]) + before, message: error.message};
        }
    };
    runJob(Object.assign({tables: web.texts, recording: Buffer.from(actions.map(one => JSON.stringify(one)).join('\n')),
        macro: macro, written: macro, isEdited: false, losses: [], assumed: [], map: map}, changes),
    changes.run || runHere, one => news.push(one));
    return news;
}

function circle(handle, radius) {
    return {added: {class: 'AcDbCircle', handle: handle, properties: [{tag: 'Center X', value: 1},
        {tag: 'Center Y', value: 2}, {tag: 'Radius', value: radius}]}};
}

{
    const told = {line: 3, path: '', what: 'added AcDbCircle 32: all of it', reason: 'so'};
    const [end] = run([circle('30', 5), circle('31', 6), circle('32', 7)],
        ['sketch.InsertCircle(1, 2, 0, 5);', 'sketch.InsertCircle(1, 2, 0, 6.5);', ''], {losses: [told]});
    assert.deepStrictEqual([end.kind, end.verdict, end.objects], ['done', 'different', 2]);
    assert.deepStrictEqual(end.handles, {equal: ['30'], missingAsTold: ['32'], notChecked: []});
    assert.deepStrictEqual(end.drawn, [{kind: 'different', space: '', shape: 1, numbers: [1, 2, 6.5, 0, 2 * Math.PI]}]);
}

// How far it is, where it stops, and that it was not run at all.
{
    const statements = ['for (var i = 0; i < 1200; ++i) { sketch.InsertPoint(0, 0, 0); }', 'sketch.Insert(none);'];
    const news = run([circle('30', 5), circle('31', 5)], statements);
    assert.deepStrictEqual(news.map(one => one.kind), ['progress', 'done']);
    assert.deepStrictEqual([news[0].calls, news[1].objects, news[1].verdict], [1000, 1200, 'stopped']);
    assert.deepStrictEqual(news[1].stopped, {macroLine: 7, message: 'none is not defined'});
    const [refused] = run([circle('30', 5)], [''], {run: () => ({line: null, isRefused: true, message: 'not run'})});
    assert.deepStrictEqual(refused, {kind: 'refused', message: 'not run'});
}

// Prompts have the answers that were recorded, and not one more.
{
    const ask = (kind, result) => ({interaction: {kind: kind, prompt: '', result: result}});
    const actions = [ask('point', {point3d: [4, 5, 6]}), ask('double', null), ask('double', {double: 2.5}),
        ask('keyword', [{string: '_All'}]), ask('integer', {int32: 7}), circle('30', 2.5)];
    const statements = ['var p = prompts.PromptForPoint("");', '', 'var r = prompts.PromptForDouble("", 1);',
        'var k = prompts.PromptForKeyword2("", "", [], [], 1, "");', 'var n = prompts.PromptForInteger("", 1);',
        'sketch.InsertText(p + r + k + n);'];
    assert.match(run(actions, statements.concat())[0].stopped.message, /InsertText/);
    statements[5] = 'throw new Error([p, r, k, n].join());';
    assert.strictEqual(run(actions, statements)[0].stopped.message, '4,5,6,2.5,_All,7');
    statements[5] = 'prompts.PromptForInteger("", 1);';
    assert.match(run(actions, statements)[0].stopped.message, /^PromptForInteger asks more often/);
}

// Primitives of what statements draw, in a model of their own.
function drawn(...statements) {
    const actions = [{null: null}];
    return run(actions, [statements.join(' ')]).pop().drawn.map(one => [one.shape, ...one.numbers.map(number =>
        Math.round(number * 1000) / 1000 + 0), ...('text' in one ? [one.text] : [])]);
}

for (const [statement, ...wanted] of [
    ['InsertLine(1, 2, 3, 4, 5, 6)', [0, 1, 2, 4, 5]],
    ['InsertArc(1, 2, 0, 5, 1, 0.5)', [1, 1, 2, 5, 1, 5.783]],
    ['InsertRay(0, 0, 0, 1, 1, 0)', [6, 0, 0, 1, 1]],
    ['InsertInfiniteLine(0, 0, 0, 1, 1, 0)', [7, 0, 0, 1, 1]],
    ['InsertPoint(3, 4, 0)', [5, 3, 4]],
    ['InsertEllipseDistanceToOtherAxis(0, 0, 8, 0, 1)', [2, 0, 0, 0, 3, 4, 0, -4, 0, 0, -1, 0, 6.283]],
    ['InsertPolyline2D([0, 0, 2, 0, 2, 2], true).SetSegmentAngle(0, Math.PI / 2)',
        [2, 0, 0, 0, 2, 1, 1, 1.414, -2.356, 1.571, 1, 2, 2, 1, 0, 0]],
    ['InsertPolyline3D([0, 0, 5, 2, 0, 5], false)', [2, 0, 0, 0, 1, 2, 0]],
    ['InsertSpline([0, 0, 0, 3, 0, 0, 6, 0, 0], false, 0, 0, 0, 0, 0, 0)',
        [2, 0, 0, 0, 4, 1, 0, 2, 0, 3, 0, 4, 4, 0, 5, 0, 6, 0]],
    ['InsertSpline([0, 0, 0, 3, 0, 0], false, 0, 9, 0, 0, -9, 0)', [2, 0, 0, 0, 4, 0, 1, 3, 1, 3, 0]],
    ['InsertSolid([0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0])', [3, 0, 0, 0, 1, 1, 0, 1, 1, 1, 1, 0, 1, 5]],
    ['InsertFace([0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0], true, false, true, false)',
        [2, 0, 0, 0, 1, 1, 0, 0, 1, 1, 1, 0, 1]],
    ['InsertSimpleNote(1, 2, 0, 3, 0.5, "Text").SetAlignmentPoint(7, 8, 0)', [4, 1, 2, 3, 0.5, 0, 10, 0, 'Text']],
    ['InsertNote(0, 10, 0, 20, 0, 0, ["{\\\\fArial;one}\\\\Ptwo"]).put_TextHeight(3)',
        [4, 0, 10, 3, 0, 0, 1, 0, 'one'], [4, 0, 5, 3, 0, 0, 1, 0, 'two']],
    ['InsertAlignedDimension([0, 0, 0], [4, 0, 0], [0, 2, 0], "")', [2, 0, 0, 0, 1, 4, 0, 1, 0, 2]],
]) {
    assert.deepStrictEqual(drawn('sketch.' + statement + ';'), wanted, statement);
}
assert.deepStrictEqual(primitivesOf(new web.Thing('Line', null, null)), []);
