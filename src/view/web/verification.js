// One macro run and held against its recording, and what people and programs are told of it.

'use strict';

const verificationVersion = 1;

// Handles are written in capitals and without zeros in front, unless somebody has written them by hand.
const oddHandle = /"(?:handles?|id)":\s*\[?\s*"(?:0|[0-9A-F]*[a-f])/;

function usualHandle(key, value) {
    const usual = one => typeof one === 'string' && /^[0-9A-Fa-f]+$/.test(one)
        ? one.toUpperCase().replace(/^0+(?=.)/, '') : one;
    return key === 'handle' || key === 'id' ? usual(value) : key === 'handles' ? value.map(usual) : value;
}

// The lines of a recording, parsed; null where one is empty.
function parseLines(text) {
    return text.replace(/^\uFEFF/, '').split('\n').map(line => !line.trim() ? null
        : oddHandle.test(line) ? JSON.parse(line, usualHandle) : JSON.parse(line));
}

// What all verifications of one target share. `texts` has the tables by their names.
class Tables {
    constructor(texts, target) {
        this.known = readInterface(texts['interface.txt'], target);
        this.state = readState(texts['state.txt']);
        this.places = new Places(texts['places.txt']);
        this.calls = new Calls(texts['calls.txt']);
        const making = [...this.state.keys()].filter(name => /^(Insert|Create|Load)/.test(name));
        this.keyed = new Set([...this.calls.names, ...making]);
    }
}

// The drawing that a macro of this recording finds when it begins.
function startModel(tables, lines) {
    const tags = new Set();
    const actions = actionsOf(lines);
    for (const {action} of actions) {
        if (action.custom && action.custom.kind === kinds.attribute) {
            tags.add(datumOf(action.custom.data, 2));
        }
        const records = action.modified ? action.modified.properties : action.property ? [action.property] : [];
        records.filter(isAttribute).forEach(({tag}) => tags.add(tag));
    }
    const model = new Model(tables.known, tables.state, tables.keyed, offeredObjects(lines),
        listedObjects(lines, tables.places), [...tags]);
    model.answers = recordedAnswers(actions);
    return model;
}

// Holds the drawing of a run against the recording: the `comparison`, and the `result` as people and programs are told
// it. `given` has the recording's `lines`, the `losses` and what is `assumed` of its report, the `map` of the written
// macro, the text `macro` that ran and the one that was `written`; `stopped` is the error that ended the run,
// {line, message}, or null.
function compareDrawings(tables, model, given) {
    const origins = new Origins(given.map);
    const recorded = new Recorded(given.lines, tables.places, tables.calls, new Told(given.losses),
        new Told(given.assumed), origins);
    if (!model.lineOf) {
        giveLines(model.calls, callPlaces(given.macro, tables.keyed));
    }
    const aligned = given.macro === given.written ? null
        : alignLines(given.written.split('\n'), given.macro.split('\n'));
    const compared = new Comparison(recorded, model, origins, line => aligned ? aligned[line] : line,
        tables.places);
    const told = given.losses.map(loss => ({kind: 'missingAsTold', class: '', handle: '', line: loss.line,
        path: loss.path || '', macroLines: null, what: loss.what, recorded: null, drawn: null, reason: loss.reason}));
    const place = one => one.line || Infinity;
    const findings = told.concat(compared.findings).sort((a, b) =>
        place(a) < place(b) ? -1 : Number(place(a) > place(b)));
    const counts = {equal: compared.equal.length, different: 0, missingAsTold: 0, missing: 0, surplus: 0,
        notChecked: 0};
    findings.forEach(one => { counts[one.kind] += 1; });
    const isEqual = counts.different + counts.missing + counts.surplus === 0;
    const result = {verdict: given.stopped ? 'stopped' : isEqual ? 'equal' : 'different', counts: counts,
        stopped: given.stopped ? {macroLine: given.stopped.line, message: given.stopped.message} : null,
        findings: findings};
    return {comparison: compared, result: result};
}

function compareRun(tables, model, given) {
    return compareDrawings(tables, model, given).result;
}

function countText(count, one, several) {
    return count + ' ' + (count === 1 ? one : several);
}

function valueText(value) {
    return value === null ? 'nothing' : Array.isArray(value) ? '(' + value.map(valueText).join(', ') + ')'
        : JSON.stringify(value);
}

// One finding in a line.
function findingText(one) {
    const place = one.line === null ? '' : 'line ' + one.line + (one.path ? ' ' + one.path : '');
    const [first, last] = one.macroLines || [];
    const lines = one.macroLines === null ? ''
        : first === last ? 'macro line ' + first : 'macro lines ' + first + '-' + last;
    const places = [place, lines].filter(text => text).join(', ');
    const object = [one.class, one.handle].filter(text => text).join(' ');
    const what = [object, one.what].filter(text => text).join(': ');
    const values = one.kind === 'different' ? ' is ' + valueText(one.drawn) + ' and should be ' + valueText(one.recorded)
        : '';
    const kind = {different: 'different', missing: 'missing', surplus: 'surplus', missingAsTold: 'lost, as the report tells',
        notChecked: 'not checked'}[one.kind];
    return '  ' + kind + ': ' + (places ? places + ': ' : '') + what + values + (values ? '' : ': ' + one.reason);
}

// What a person is told: a line, and behind it what is not as it was recorded.
function verificationText(input, result) {
    const {counts} = result;
    const parts = [countText(counts.equal, 'object', 'objects') + ' equal'];
    const others = [['different', 'different'], ['missing', 'missing'], ['surplus', 'surplus'],
        ['missingAsTold', 'lost as the report tells'], ['notChecked', 'made by the application, its arguments compared']];
    for (const [kind, words] of others) {
        if (counts[kind]) {
            parts.push(counts[kind] + ' ' + words);
        }
    }
    const stop = result.stopped ? ['  stopped' + (result.stopped.macroLine ? ' at macro line ' + result.stopped.macroLine
        : '') + ': ' + result.stopped.message] : [];
    const shown = result.findings.filter(one => one.kind !== 'missingAsTold' && one.kind !== 'notChecked');
    return [input + ': ' + parts.join(', '), ...stop, ...shown.map(findingText)].join('\n') + '\n';
}
