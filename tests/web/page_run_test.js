// What the page reads of what its frame tells, and what it tells of a run itself.

'use strict';

const assert = require('assert');
const vm = require('vm');
const {dataOf} = require('./page');
const {endOf, runWords, runLines, jobOf} = vm.runInThisContext('({endOf, runWords, runLines, jobOf})');

const recording = ['{"recording":{"version":1}}', '{"command":{"name":"LINE","actions":[{},{}]}}', '{"added":{}}'].join('\n');
const form = {status: 0, error: '', notes: [0, 1], faults: [], text: 'macro.javascript', hasMap: true};
const given = {
    steps: [{kind: 'command', line: 2}, {kind: 'added', line: 2, parent: 0, child: 0, handles: ['30']},
        {kind: 'custom', line: 2, parent: 0, child: 1, handles: ['30', 'A1']}, {kind: 'added', line: 3, handles: ['1F0000000A']}],
    objects: [{handle: 'A1'}, {handle: '30', added: 1}, {handle: '1F0000000A', added: 3}], recording: recording,
    index: {spaces: [{name: 'Sheet1', kind: 'sheet'}, {name: 'Model', kind: 'model'}], counts: {objects: 2},
        notes: [{kind: 'loss', line: 2, path: 'command.actions[0]', what: 'x', reason: 'y', property: 'z'},
            {kind: 'assumption', line: 3, path: '', what: 'a', reason: 'b'}],
        targets: [{name: 'javascript', title: 'JavaScript', file: 'one.html', forms: {repaired: form}}]},
    islands: {'macro.javascript': 'head\nfirst\nsecond\nboth\n', tables: '{"a.txt":"rows"}',
        'map.javascript.repaired': {lines: ['u32', [1, 2, 1]], step: ['d32', [-1, 1, 2]], part: ['u8', [0, 3, 3]]}}};

const finding = changes => Object.assign({kind: 'different', line: 2, path: 'command.actions[0]', handle: '30',
    macroLines: [2, 3], what: 'Radius', recorded: 5, drawn: [1, 2], reason: 'so', class: 'AcDbCircle'}, changes);

async function test() {
    const data = await dataOf(given);

    // The frame gets the recording, and the map as convert writes it.
    const job = await jobOf(data, 'repaired');
    assert.strictEqual(Buffer.from(job.recording).toString(), recording);
    assert.deepStrictEqual([job.macro, job.written, job.isEdited, job.tables],
        ['head\nfirst\nsecond\nboth\n', 'head\nfirst\nsecond\nboth\n', false, {'a.txt': 'rows'}]);
    assert.deepStrictEqual([job.losses.map(one => one.what), job.assumed.map(one => one.what)], [['x'], ['a']]);
    assert.deepStrictEqual(job.map.ranges, [{lines: [1, 1], kind: 'frame'},
        {lines: [2, 3], kind: 'statements', line: 2, path: 'command.actions[0]', handles: ['30']},
        {lines: [4, 4], kind: 'statements', line: 2, path: 'command.actions[1]', handles: ['30', 'A1']}]);

    // What is found leads to steps and objects; what is found of one counts ahead of what is not.
    const end = endOf(data, {verdict: 'different', counts: {equal: 1, different: 1}, stopped: null, objects: 7,
        findings: [finding({}), finding({kind: 'surplus', handle: '', line: null, path: '', macroLines: null})],
        handles: {equal: ['30', '1F0000000A', 'FF'], missingAsTold: [], notChecked: ['A1', '30']},
        drawn: [{shape: 1, numbers: [1, 2, 3, 0, 6], kind: 'different', space: ''},
            {shape: 4, numbers: [0], kind: 'surplus', space: 'Sheet1', text: 'words'},
            {shape: 5, numbers: [1, 2], kind: 'surplus', space: 'gone'}]});
    assert.deepStrictEqual(Array.from(end.kinds), [6, 2, 1]);
    assert.deepStrictEqual(end.objects, {drawn: 1, of: 2});
    assert.deepStrictEqual(end.findings.map(one => [one.step, one.object, one.lines, one.recorded, one.drawn]),
        [[1, 1, [2, 3], '5', '[1,2]'], [-1, -1, null, '5', '[1,2]']]);
    assert.deepStrictEqual(end.drawn.map(one => [one.shape, one.kind, one.text, one.space]),
        [[1, 2, '', 1], [4, 4, 'words', 0], [5, 4, '', 0]]);
    assert.deepStrictEqual(runWords(end), {text: 'macro draws 1 of 2', tone: 'fault'});
    assert.deepStrictEqual(runLines(end), ['1 as recorded', '1 different']);

    // A macro may tell whatever it likes: numbers and texts are read, and nothing else.
    const strange = endOf(data, {verdict: {}, counts: 'many', stopped: {macroLine: '3', message: ['no']},
        findings: [null, 5, finding({kind: {}, line: '2', path: 7, handle: ['30'], macroLines: ['1', {}], class: null,
            what: {toString: () => 'code'}, recorded: {rgb: [1, 2, 3]}, drawn: undefined})],
        handles: {equal: 'all', notChecked: [{}, null, '<b>']}, drawn: [{shape: 'x', numbers: ['1', NaN, 2], text: {}}],
        objects: Infinity});
    assert.deepStrictEqual(strange.stopped, {line: 0, message: ''});
    assert.deepStrictEqual(strange.findings[2], {kind: '', step: -1, object: -1, lines: [0, 0], what: '',
        recorded: '{"rgb":[1,2,3]}', drawn: '', reason: 'so', class: '', handle: ''});
    assert.deepStrictEqual(strange.drawn, [{shape: 0, numbers: [0, 0, 2], kind: 2, text: '', space: 1}]);
    assert.deepStrictEqual([strange.verdict, strange.made, Array.from(strange.kinds)], ['', 0, [0, 0, 0]]);

    for (const [run, text, tone, lines] of [
        [null, 'not run yet', 'none', []],
        [{state: 'running', progress: 12000}, 'macro runs\u2026 12,000 calls', 'busy', []],
        [{state: 'refused', message: 'why'}, 'macro was not run', 'fault', ['why']],
        [Object.assign({}, end, {state: 'stopped', made: 1, stopped: {line: 126, message: 'x is not defined'}}),
            'macro stops at line 126, draws 1 of 2', 'fault',
            ['x is not defined (line 126), after 1 object', '1 as recorded', '1 different']],
        [Object.assign({}, end, {verdict: 'equal', counts: {}}), 'macro draws 1 of 2', 'good', []]
    ]) {
        assert.deepStrictEqual([runWords(run).text, runWords(run).tone, runLines(run)], [text, tone, lines]);
    }
}

test().catch(error => {
    process.stderr.write(error.stack + '\n');
    process.exitCode = 1;
});
