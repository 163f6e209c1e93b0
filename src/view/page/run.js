// Runs the JavaScript macro in a frame that can do nothing but answer, and keeps what came of it.

'use strict';

const manyObjects = 20000; // of which a run is asked for first: some browsers do not answer while it goes on
const tooManyObjects = 100000; // for the stack of one function with a variable of each
const kindNumbers = {equal: 1, different: 2, missing: 3, surplus: 4, missingAsTold: 5, notChecked: 6};

function asNumber(value) {
    return typeof value === 'number' && isFinite(value) ? value : 0;
}

function asText(value) {
    return typeof value === 'string' ? value : '';
}

function asList(value) {
    return Array.isArray(value) ? value : [];
}

// Two line numbers, or null.
function asLines(value) {
    return Array.isArray(value) && value.length === 2 ? value.map(asNumber) : null;
}

// A value of a comparison as text; whatever a macro makes of it, it becomes nothing else.
function asShown(value) {
    if (value === null || value === undefined) {
        return '';
    }
    try {
        return typeof value === 'string' ? value : String(JSON.stringify(value));
    } catch (error) {
        return 'a value that cannot be shown'; // one that holds itself, or a whole number of any length
    }
}

// A map as convert writes it.
function mapFor(data, lineMap) {
    const ranges = [];
    for (let i = 0; i < lineMap.count; ++i) {
        const {first, last, step, part} = lineMap.range(i);
        const range = {lines: [first, last], kind: part};
        if (step >= 0) {
            const handles = data.steps.handleFirst[step + 1] - data.steps.handleFirst[step];
            Object.assign(range, {line: data.steps.line[step], path: data.pathOf(step),
                handles: Array.from({length: handles}, (_, which) => data.handleOfStep(step, which))});
        }
        ranges.push(range);
    }
    return {ranges: ranges};
}

// Everything that the frame needs to run a form of the macro.
async function jobOf(data, form) {
    const target = 'javascript';
    const writtenForm = form === 'edited' ? (data.formOf(target, 'repaired') ? 'repaired' : 'recorded') : form;
    const [macro, written, lineMap, recording, tables] = await Promise.all([data.macro(target, form),
        data.macro(target, writtenForm), data.map(target, writtenForm), data.island('recording'), data.json('tables')]);
    const notes = kind => data.notesOf(target, writtenForm).filter(note => note.kind === kind);
    return {macro: macro.text(), written: written.text(), isEdited: form === 'edited', map: mapFor(data, lineMap),
        losses: notes('loss'), assumed: notes('assumption'), recording: recording, tables: tables};
}

function findingOf(data, told) {
    const [kind, line, path, handle] = [asText(told.kind), asNumber(told.line), asText(told.path), asText(told.handle)];
    const step = line > 0 ? data.stepAt(line, path) : -1;
    const object = handle ? data.objectByHandle(handle) : kind === 'missingAsTold' && step >= 0
        ? data.objectOfStep(step) : -1;
    return {kind: kind, step: step, object: object, lines: asLines(told.macroLines), what: asText(told.what),
        recorded: asShown(told.recorded), drawn: asShown(told.drawn), reason: asText(told.reason),
        class: asText(told.class), handle: handle};
}

// By the numbers of the objects what became of each. What is found of one counts ahead of what is not.
function kindsOf(data, told, findings) {
    const kinds = new Uint8Array(data.objects.count);
    const put = (object, kind) => {
        if (object >= 0) {
            kinds[object] = kindNumbers[kind];
        }
    };
    const handles = Object(told.handles);
    for (const kind of ['notChecked', 'equal', 'missingAsTold']) {
        asList(handles[kind]).forEach(handle => put(data.objectByHandle(asText(handle)), kind));
    }
    findings.filter(one => one.kind === 'different' || one.kind === 'missing')
        .forEach(one => put(one.object, one.kind));
    return kinds;
}

function drawnOf(data, told) {
    const {spaces, firstSpace} = data.index;
    const spaceOf = name => spaces.findIndex(one => name ? one.kind === 'sheet' && one.name === name
        : one.kind === 'model');
    return asList(told.drawn).map(one => ({shape: asNumber(one.shape), numbers: asList(one.numbers).map(asNumber),
        kind: one.kind === 'surplus' ? kindNumbers.surplus : kindNumbers.different, text: asText(one.text),
        space: spaceOf(asText(one.space)) < 0 ? firstSpace : spaceOf(asText(one.space))}));
}

// How many of the added objects the macro draws as they are recorded.
function drawnCount(data, kinds) {
    let drawn = 0;
    let of = 0;
    for (let i = 0; i < data.objects.count; ++i) {
        of += data.objects.added[i] >= 0 ? 1 : 0;
        drawn += data.objects.added[i] >= 0 && kinds[i] === kindNumbers.equal ? 1 : 0;
    }
    return {drawn: drawn, of: of};
}

// What the frame tells at the end, read by name: numbers and texts, and nothing else.
function endOf(data, told) {
    const counts = {};
    Object.keys(kindNumbers).forEach(kind => { counts[kind] = asNumber(Object(told.counts)[kind]); });
    const findings = asList(told.findings).map(one => findingOf(data, Object(one)));
    const kinds = kindsOf(data, told, findings);
    const stop = told.stopped ? Object(told.stopped) : null;
    return {state: stop ? 'stopped' : 'done', verdict: asText(told.verdict), counts: counts, findings: findings,
        kinds: kinds, drawn: drawnOf(data, told), made: asNumber(told.objects), objects: drawnCount(data, kinds),
        stopped: stop ? {line: asNumber(stop.macroLine), message: asText(stop.message)} : null};
}

function numberText(count) {
    return count.toLocaleString('en-US');
}

// The verdict in words for header and panel, with its tone.
function runWords(run) {
    switch (run && run.state) {
    case 'running': return {text: 'macro runs\u2026' + (run.progress ? ' ' + numberText(run.progress) + ' calls' : ''),
        tone: 'busy'};
    case 'refused': return {text: 'macro was not run', tone: 'fault'};
    case 'failed': return {text: 'the run came to no end', tone: 'fault'};
    case 'ended': return {text: 'macro was stopped here', tone: 'none'};
    case 'stopped': return {text: 'macro stops' + (run.stopped.line ? ' at line ' + run.stopped.line : '')
        + ', draws ' + numberText(run.objects.drawn) + ' of ' + numberText(run.objects.of), tone: 'fault'};
    case 'done': return !run.objects.of && run.verdict === 'equal' ? {text: 'nothing to compare', tone: 'none'}
        : {text: 'macro draws ' + numberText(run.objects.drawn) + ' of ' + numberText(run.objects.of),
        tone: run.verdict === 'equal' ? 'good' : 'fault'};
    }
    return {text: 'not run yet', tone: 'none'};
}

// Further sentences for the panel.
function runLines(run) {
    if (!run || run.state === 'running') {
        return [];
    }
    if (run.message) {
        return [run.message];
    }
    const lines = run.stopped ? [run.stopped.message + (run.stopped.line ? ' (line ' + run.stopped.line + ')' : '')
        + ', after ' + numberText(run.made) + (run.made === 1 ? ' object' : ' objects')] : [];
    const words = {equal: 'as recorded', different: 'different', missing: 'missing', surplus: 'surplus',
        missingAsTold: 'lost as the report tells',
        notChecked: 'made by the application, what it is handed is compared'};
    return lines.concat(Object.keys(words).filter(kind => run.counts[kind])
        .map(kind => numberText(run.counts[kind]) + ' ' + words[kind]));
}

// One run at a time, and the last result of each form.
class Runner {
    constructor(data, pageState, button) {
        this.data = data;
        this.state = pageState;
        this.button = button;
        this.results = new Map(); // by form
        this.number = 0;
        this.frame = null;
        this.policy = null;
        button.addEventListener('click', () => this.frame ? this.stop() : this.start(this.formToRun()));
        pageState.on(['form', 'target'], values => this.showKept(values));
        pageState.on(['run', 'form', 'target'], () => this.label());
        this.label();
    }

    hasText(form) {
        const one = this.data.formOf('javascript', form);
        return Boolean(one) && one.status === 0;
    }

    // That which is shown, else the one that is to work.
    formToRun() {
        const {target, form} = this.state.get();
        const shown = target !== 'javascript' ? null : form === 'differences' ? 'repaired' : form;
        return [shown, 'edited', 'repaired', 'recorded'].find(one => one && this.hasText(one)) || null;
    }

    label() {
        const form = this.formToRun();
        const runs = this.frame !== null;
        this.button.hidden = form === null;
        this.button.textContent = runs ? 'Stop' : 'Run macro';
        this.button.title = runs ? 'Stop the run'
            : {recorded: 'Run the JavaScript macro as it was recorded', repaired: 'Run the repaired JavaScript macro',
                edited: 'Run the edited JavaScript macro'}[form] || '';
    }

    // The result of a form that has been run comes back with it.
    showKept({target, form}) {
        const kept = target === 'javascript' ? this.results.get(form === 'differences' ? 'repaired' : form) : null;
        if (kept && !this.frame) {
            this.state.set({run: kept}, 'run');
        }
    }

    agrees() {
        const count = this.data.index.counts.objects;
        const overflow = ' So many variables in one function are too much for the stack of most browsers, and the macro'
            + ' will stop.';
        const question = numberText(count) + ' objects: the page may not answer until the macro has drawn them.'
            + (count > tooManyObjects ? overflow : '') + ' Run it?';
        return count <= manyObjects || window.confirm(question);
    }

    async start(form) {
        if (form === null || this.frame || !this.agrees()) {
            return;
        }
        const number = ++this.number;
        this.frame = document.createElement('iframe');
        this.put(form, {state: 'running', progress: 0});
        try {
            const [text, job] = await Promise.all([this.data.island('frame'), jobOf(this.data, form)]);
            if (number === this.number && this.frame) {
                this.open(new TextDecoder('utf-8').decode(text), Object.assign(job, {run: number}));
            }
        } catch (error) {
            if (number === this.number && this.frame) {
                this.end({state: 'failed', message: error.message});
            }
        }
    }

    open(text, job) {
        if (window.trustedTypes && !this.policy) {
            this.policy = window.trustedTypes.createPolicy('frame', {createHTML: one => one});
        }
        const {frame} = this;
        frame.setAttribute('sandbox', 'allow-scripts');
        frame.hidden = true;
        frame.title = 'Run of the macro';
        const {port1, port2} = new MessageChannel();
        port1.onmessage = ({data}) => this.hear(data);
        frame.addEventListener('load', () => frame.contentWindow.postMessage(job, '*', [port2]), {once: true});
        frame.srcdoc = this.policy ? this.policy.createHTML(text) : text;
        document.body.append(frame);
    }

    // Of what the frame says; one that is gone may still be heard.
    hear(data) {
        if (!this.frame || Object(data).run !== this.number) {
            return;
        }
        const kind = asText(data.kind);
        if (kind === 'progress') {
            this.put(this.form, {state: 'running', progress: asNumber(data.calls)});
        } else if (kind === 'done') {
            this.end(endOf(this.data, data));
        } else if (kind === 'refused' || kind === 'failed') {
            this.end({state: kind, message: asText(data.message)});
        }
    }

    stop() {
        ++this.number;
        this.end({state: 'ended', message: ''});
    }

    end(result) {
        this.frame.remove();
        this.frame = null;
        this.put(this.form, result);
        if (result.kinds) {
            this.results.set(this.form, this.state.get().run);
            this.state.set({mode: 'compared'}, 'run');
        }
    }

    put(form, result) {
        this.form = form;
        this.state.set({run: Object.assign({target: 'javascript', form: form, progress: 0, stopped: null, verdict: '',
            message: '', counts: {}, findings: [], kinds: new Uint8Array(this.data.objects.count), drawn: [], made: 0,
            objects: {drawn: 0, of: 0}}, result)}, 'run');
    }
}

function openRunner(data) {
    return new Runner(data, state, document.getElementById('run'));
}
