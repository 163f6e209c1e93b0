// Macros written by hand, which do what was recorded but for one thing each time.

'use strict';

const assert = require('assert');
const web = require('./web');
const {runPage, runningLine} = require('../../src/view/node/page');

const tables = new web.Tables(web.texts, 'javascript');
const layer = {object: {class: 'AcDbLayerTableRecord', handle: '10', name: 'Walls'}};

function propertiesOf(values) {
    return Object.entries(values).map(([tag, value]) => ({tag: tag, value: value}));
}

function added(cls, handle, values) {
    return {added: {class: cls, handle: handle, properties: propertiesOf(values)}};
}

function modified(cls, handle, values) {
    return {modified: {class: cls, handle: handle, properties: propertiesOf(values)}};
}

const theLine = added('AcDbLine', '30', {'Start X': 0, 'Start Y': 0, 'Start Z': 0, 'End X': 4, 'End Y': 0, 'End Z': 0,
    Layer: {id: '10'}, LineColor: {color: {index: 3}}, LineWeight: {int: 35}});
const drawsLine = ['var line1 = sketch.InsertLine(0, 0, 0, 4, 0, 0);', 'line1.put_Layer("Walls");',
    'line1.put_Color(app.GetColorByIndex(3));', 'line1.put_LineWeight("iwLnWt_035");'];
const theArc = added('AcDbArc', '31', {'Center X': 1e6, 'Center Y': 2, Radius: 5, 'Start Angle': 1, 'End Angle': 2});
const drawsArc = ['var arc1 = sketch.InsertArc(1000000, 2, 0, 5, 1, 2);'];

// Each step is an action and the lines that do it, or [action, lines, handles of these] where they are others.
function verify(steps, {edit = text => text, losses = [], assumed = [], forget = null, drawn = []} = {}) {
    const lines = [layer, ...drawn.map(one => ({object: one})), ...steps.map(([action]) => action)];
    const head = ['<script type="text/javascript">', 'function runMacro() {',
        'var app = new ijScriptManager().getApplication(), doc = app.GetActiveDocument();',
        'var sketch = doc.GetModel().GetSketchManager(), layers = doc.GetLayerManager();'];
    const map = {ranges: [{lines: [1, head.length], kind: 'frame'}]};
    const text = head.slice();
    steps.forEach(([action, statements, handles], i) => {
        const [record] = Object.values(action);
        map.ranges.push({lines: [text.length + 1, text.length + statements.length], line: i + 2 + drawn.length,
            path: '', handles: handles || [record.handle], kind: 'insertion'});
        text.push(...statements);
    });
    const written = text.concat(['}', '</script>']).join('\n');
    const macro = edit(written);
    const model = web.startModel(tables, lines);
    model.lineOf = runningLine;
    if (forget) {
        const call = model.call.bind(model);
        model.call = (on, name, given, types) => call(on, forget(name) ? 'Activate' : name, given, types);
    }
    const stopped = runPage(macro, new web.Library(tables.known, model).globals);
    return web.compareRun(tables, model, {lines: lines, losses: losses, assumed: assumed, map: map, macro: macro,
        written: written, stopped: stopped});
}

function shown(result) {
    return result.findings.map(one => [one.kind, one.handle, one.what].join(' ').trim());
}

function differs(edit, wanted) {
    assert.deepStrictEqual(shown(verify([[theLine, drawsLine], [theArc, drawsArc]], {edit: edit})), wanted);
}

const replaced = (from, to) => text => {
    assert(text.includes(from), from);
    return text.replace(from, to);
};

// The same, within the tolerance, and everything that may be another.
differs(text => text, []);
differs(replaced('1000000, 2,', '1000000.0009, 2.0000000001,'), []);
differs(replaced('5, 1, 2)', '5, 1 + 2 * Math.PI, 2)'), []);
differs(replaced('4, 0, 0)', '4, 2e-9, 0)'), ['different 30 End Y']);
differs(replaced('1000000, 2,', '1000000.002, 2,'), ['different 31 Center X']);
differs(replaced('5, 1, 2)', '5, 1.001, 2)'), ['different 31 Start Angle']);
differs(replaced('"Walls"', '"0"'), ['different 30 Layer']);
differs(replaced('GetColorByIndex(3)', 'GetColorByIndex(4)'), ['different 30 LineColor']);
differs(replaced('GetColorByIndex(3)', 'GetRGBColor(1, 2, 3)'), ['different 30 LineColor']);
differs(replaced('_035', '_030'), ['different 30 LineWeight']);
differs(replaced('\nline1.put_Layer("Walls");', ''), ['different 30 Layer']);
differs(replaced('line1.put_Layer', 'line1.put_Erased(true);\nline1.put_Layer'), ['different 30 Erased']);
differs(replaced('line1.put_Layer', 'line1.put_Thickness(2);\nline1.put_Layer'), ['different 30 Thickness']);
// Objects: none, one more, and one that is gone again.
differs(replaced(drawsArc[0], ''), ['missing 31']);
differs(replaced(drawsArc[0], drawsArc[0] + '\nsketch.InsertPoint(1, 1, 0);'), ['surplus']);
differs(replaced(drawsArc[0], 'sketch.InsertPoint(1, 1, 0).put_Erased(true);\n' + drawsArc[0]), []);
differs(replaced('InsertArc(1000000, 2, 0, 5, 1, 2)', 'InsertCircle(1000000, 2, 0, 5)'), ['missing 31', 'surplus']);
// In a loop all are of the same line, of which the first counts, and those behind it stay what they are.
differs(replaced(drawsLine[0], 'var line1;\nfor (var i = 0; i < 3; ++i)\n' + drawsLine[0].replace('var ', '')
    .replace('(0,', '(i,')),
    ['different 30 LineColor', 'different 30 Layer', 'different 30 LineWeight', 'surplus', 'surplus']);

// What stops a run is told with its line, and what comes behind it is missing.
{
    const result = verify([[theLine, drawsLine], [theArc, drawsArc]], {edit: replaced('put_LineWeight', 'put_Weight')});
    assert.strictEqual(result.verdict, 'stopped');
    assert.strictEqual(result.stopped.macroLine, 8);
    assert.match(web.verificationText('a.jsonl', result), /^a\.jsonl: .*\n {2}stopped at macro line 8: .*put_Weight/);
    assert.deepStrictEqual(shown(result), ['different 30 LineWeight', 'missing 31']);
}

// What the report tells is not asked for.
{
    const told = [{line: 2, path: '', what: 'property "Layer" of AcDbLine 30', reason: 'so'}];
    const result = verify([[theLine, drawsLine.filter(one => !one.includes('Layer'))]], {losses: told});
    assert.deepStrictEqual([result.verdict, shown(result)], ['equal', ['missingAsTold  property "Layer" of AcDbLine 30']]);
}

// A model that forgets a property, a class or what is erased is found out.
{
    const erased = {custom: {kind: 17, data: [{handles: ['30']}, {classes: ['AcDbLine']}]}};
    const steps = [[theLine, drawsLine], [theArc, drawsArc], [erased, ['line1.put_Erased(true);'], ['30']]];
    for (const [forgotten, wanted] of [['none', []], ['put_LineWeight', ['different 30 LineWeight']],
        ['put_Erased', ['different 30 Erased']]]) {
        assert.deepStrictEqual(shown(verify(steps, {forget: name => name === forgotten})), wanted);
    }
    const insertions = web.Model.prototype.tellInsertion;
    web.Model.prototype.tellInsertion = function (thing, ...rest) {
        return thing.cls === 'CircleArc' ? undefined : insertions.call(this, thing, ...rest);
    };
    assert.strictEqual(verify(steps).counts.different, 5);
    web.Model.prototype.tellInsertion = insertions;
}

// Layers keep what they are behind a new name, and what changes another one is found.
{
    const steps = [[modified('AcDbLayerTableRecord', '10', {Name: 'Outer'}), ['var l = layers.GetLayer("Walls").Layer;',
        'l.Rename("Outer");']], [modified('AcDbLayerTableRecord', '10', {Frozen: 'Yes'}),
        ['layers.GetLayer("Outer").Layer.put_Frozen(true);']]];
    const of = edit => shown(verify(steps, {edit: edit}));
    assert.deepStrictEqual(of(text => text), []);
    assert.deepStrictEqual(of(replaced('\nl.Rename("Outer");', '')), ['different 10 Name', 'different 10 Frozen',
        'different  Frozen']);
    assert.deepStrictEqual(of(replaced('put_Frozen(true)', 'put_Frozen(false)')), ['different 10 Frozen']);
}

// What the drawing has is compared where it changes, to nothing too, and is to change nowhere else.
{
    const drawn = [{class: 'AcDbLine', handle: '40', startPoint: [1, 2, 0], endPoint: [5, 2, 0]},
        {class: 'AcDbTextStyleTableRecord', handle: '41', name: 'Notes'}, {class: 'AcDbBlockReference', handle: '42'},
        {class: 'AcDbText', handle: '43'}];
    const find = (name, handle) => 'var ' + name + ' = doc.GetObjectByHandle("' + handle + '").DispObj;';
    const number = {class: 'AcDbBlockReference', handle: '42', tag: 'NR', value: '7', group: 'BlockAttributes'};
    const steps = [[modified('AcDbLine', '40', {'End Y': 0}), [find('line', '40'), 'var p = line.GetSecondPoint();',
        'line.SetSecondPoint(p[0], 0, p[2]);']],
    [modified('AcDbTextStyleTableRecord', '41', {Name: 'Titles', Height: 0}), [find('style', '41'),
        'style.Rename("Titles");', 'style.put_Height(0);']],
    [{property: number}, [find('block', '42'), 'block.GetAttributeInstances()[0].put_Value("7");']],
    [modified('AcDbText', '43', {TextStyle: 'Titles', Layer: {id: '10'}}), [find('text', '43'),
        'text.put_TextStyle("Titles");', 'text.put_Layer("Walls");']]];
    const of = (...change) => shown(verify(steps, {drawn: drawn, edit: replaced(...change)}));
    assert.deepStrictEqual(of('', ''), []);
    assert.strictEqual(verify(steps, {drawn: drawn}).counts.equal, 4);
    for (const [statement, wanted] of [['line.SetSecondPoint(p[0], 0, p[2]);', ['40 End Y']],
        ['style.Rename("Titles");', ['41 Name']], ['style.put_Height(0);', ['41 Height']],
        ['block.GetAttributeInstances()[0].put_Value("7");', ['42 NR']], ['text.put_Layer("Walls");', ['43 Layer']]]) {
        assert.deepStrictEqual(of(statement, ''), wanted.map(one => 'different ' + one));
    }
    assert.deepStrictEqual(of('(p[0], 0,', '(p[0] + 1, 0,'), ['different 40 SecondPoint']);
    assert.deepStrictEqual(of('"43"', '"44"'), ['different 43 Layer', 'different 43 TextStyle',
        'different 44 TextStyle', 'different 44 Layer']);
}

// What the application makes is not compared, but what it is handed is.
{
    const move = {custom: {kind: 3, data: [{handles: ['30', 'A0']}, {classes: ['AcDbLine', 'AcDbLine']},
        {vector: [1, 2, 0]}]}};
    const steps = [[theLine, drawsLine],
        [move, ['sketch.MoveEntities(1, 2, 0, [line1, doc.GetObjectByHandle("A0").DispObj]);'], ['30', 'A0']]];
    const of = edit => shown(verify(steps, {edit: edit}));
    assert.deepStrictEqual(of(text => text), ['notChecked  MoveEntities']);
    for (const [from, to] of [['(1, 2, 0,', '(1, 2.00001, 0,'], ['"A0"', '"A1"'], ['[line1, ', '[']]) {
        assert.deepStrictEqual(of(replaced(from, to)), ['different  MoveEntities']);
    }
    assert.deepStrictEqual(of(replaced(steps[1][1][0], '')), ['missing  MoveEntities']);
    assert.deepStrictEqual(of(replaced(drawsLine[3], drawsLine[3] + '\nline1.Explode();')),
        ['notChecked  MoveEntities', 'surplus']);
}

// Polylines are compared until an edit reshapes them, and behind it by what the edits are handed.
{
    const vertices = {collection: {elements: [[0, 0, 0], [4, 0, 0]].map(point => ({value: {point: point}}))}};
    const edit = (word, ...data) => ({custom: {kind: 40,
        data: [{string: word}, {handle: '40'}, {class: 'AcDbPolyline'}, ...data]}});
    const steps = [
        [added('AcDbPolyline', '40', {Vertex: vertices}), ['var p = sketch.InsertPolyline2D([0, 0, 4, 0], false);']],
        [edit('_MOVE', {int: 1}, {point: [5, 1, 9]}), ['p.SetVertexCoordinate(1, 5, 1);'], ['40']],
        [edit('_INSERT', {int: 0}, {point: [2, 2, 9]}), ['p.AddVertexAfter(0, 2, 2);'], ['40']],
        [edit('_MOVE', {int: 2}, {point: [6, 1, 9]}), ['p.SetVertexCoordinate(2, 6, 1);'], ['40']]];
    const of = change => shown(verify(steps, {edit: change})).filter(one => !one.startsWith('notChecked'));
    assert.deepStrictEqual(of(text => text), []);
    assert.deepStrictEqual(of(replaced('4, 0]', '4, 3]')), []);
    assert.deepStrictEqual(of(replaced('(1, 5, 1)', '(1, 5, 2)')), ['different 40 vertex', 'different  SetVertexCoordinate']);
    assert.deepStrictEqual(of(replaced('(0, 2, 2)', '(0, 2, 3)')), ['different  AddVertexAfter']);
    assert.deepStrictEqual(of(replaced('(2, 6, 1)', '(2, 6, 2)')), ['different  SetVertexCoordinate']);
}

// A dimension has zeros of its angles and of its lengths under one name, in this order.
{
    const suppressed = word => ({tag: 'Suppress leading zeros', value: {element: {tag: {int: 0}, value: word}}});
    const points = ['xLine1Point', 'xLine2Point', 'dimLinePoint'].map((tag, i) => [tag, {point: [i, 2 * i, 0]}]);
    const steps = [
        [added('AcDbAlignedDimension', '50', Object.fromEntries(points)),
            ['var d = sketch.InsertAlignedDimension([0, 0, 0], [1, 2, 0], [2, 4, 0], "");',
                'var user = d.GetGeneralDimension().GetDimensionStyleUserData();']],
        [{modified: {class: 'AcDbAlignedDimension', handle: '50', properties: [suppressed('No'), suppressed('Yes')]}},
            ['user.GetDimensionStyleAngularDimensionOptions().put_HideLeadingZeroes(false);',
                'user.GetDimensionStyleLinearDimensionOptions().put_HideLeadingZeroes(true);']]];
    const of = edit => shown(verify(steps, {edit: edit}));
    assert.deepStrictEqual(of(text => text), []);
    assert.deepStrictEqual(of(replaced('Zeroes(true)', 'Zeroes(false)')), ['different 50 Suppress leading zeros (2)']);
    assert.deepStrictEqual(of(replaced('Zeroes(false)', 'Zeroes(true)')), ['different 50 Suppress leading zeros']);
}
