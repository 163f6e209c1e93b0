// Runs one macro, holds what it draws against the recording, and tells the page. The page sends one message, a job:
// {run, recording, macro, written, isEdited, losses, assumed, map, tables}, and with it a port for the answers: what goes
// through a port arrives while the macro runs, and messages from window to window only behind it. Each answer has the
// number of the run.

'use strict';

const callsBetweenNews = 1000;
const stackDepth = 30; // calls of the library on top of those of the macro

// The line of the macro's script that a stack of calls comes of, null where it is none of its own: what lies on top of
// it are the operations of the library, and below it is what runs it here.
function scriptLine(stack) {
    const all = String(stack).split('\n').filter(line => /:\d+:\d+\)?$/.test(line));
    const calls = all.slice(0, all.findIndex(line => line.includes('runScript')));
    const library = calls.map(line => line.includes('libraryCall')).lastIndexOf(true);
    const [, line] = /:(\d+):\d+\)?$/.exec(calls[library + 1] || '') || [];
    return line ? Number(line) : null;
}

function stopOf(error, before) {
    const line = error && scriptLine(error.stack);
    return {line: line ? line + before : null, message: error && error.message || 'it throws ' + String(error)};
}

// Runs the text of a script and then its macro. Gives what stopped it, {line, message}, or null; `isRefused` is set
// where the browser did not run it at all.
function runScript({text, before}) {
    let stopped = null;
    const note = event => {
        event.preventDefault();
        const thrown = stopOf(event.error, before);
        stopped = stopped || {line: thrown.line || event.lineno + before,
            message: thrown.message.replace(/^Failed to execute '\w+' on '\w+': /, '')};
    };
    window.addEventListener('error', note);
    const policy = window.trustedTypes ? window.trustedTypes.createPolicy('macro', {createScript: one => one}) : null;
    const script = document.createElement('script');
    script.text = policy ? policy.createScript(text) : text;
    document.documentElement.append(script);
    window.removeEventListener('error', note);
    if (stopped || typeof window.runMacro !== 'function') {
        return stopped || {line: null, isRefused: true, message: 'the browser does not run this macro, '
            + 'since it is not the one that the page was made with'};
    }
    try {
        window.runMacro();
        return null;
    } catch (error) {
        return stopOf(error, before);
    }
}

// Reports the run while it goes on.
function countCalls(model, tell) {
    const call = model.call.bind(model);
    let calls = 0;
    model.call = (...given) => {
        if (++calls % callsBetweenNews === 0) {
            tell({kind: 'progress', calls: calls, objects: model.made.length});
        }
        return call(...given);
    };
}

// By their handles what became of objects, besides those that are found to be different or missing.
function handlesByKind(comparison, result, losses) {
    const {origins, recorded} = comparison;
    const operations = result.findings.filter(one => one.kind === 'notChecked' && one.line);
    return {equal: comparison.equal.map(one => one.handle).filter(handle => handle),
        missingAsTold: [...new Told(losses).lostOnLine].map(one => one.split(' ')[1])
            .filter(handle => !recorded.byHandle.has(handle)),
        notChecked: [].concat(...operations.map(one => origins.handlesOf(actionKey(one.line, one.path))))};
}

// What stands where it should not, each with the name of its space, of the model an empty text.
function drawnPrimitives(comparison) {
    const drawn = [];
    for (const [thing, kind] of comparison.unlike) {
        const space = thing.space ? heldOf(thing.space, 'Name()', 0) : '';
        primitivesOf(thing).forEach(one => drawn.push(Object.assign({kind: kind, space: space}, one)));
    }
    return drawn;
}

// `run` is given the macro's script and the globals that it finds, and gives what stopped it.
function runJob(job, run, tell) {
    const tables = new Tables(job.tables, 'javascript');
    const lines = parseLines(new TextDecoder('utf-8').decode(job.recording));
    const model = startModel(tables, lines);
    const script = scriptOf(job.macro);
    if (!script) {
        tell({kind: 'refused', message: 'there is no script in this macro'});
        return;
    }
    if (job.isEdited) {
        // One that is as it was written goes straight on; another one may have loops.
        model.lineOf = () => stopOf(new Error(), script.before).line;
    }
    countCalls(model, tell);
    const stopped = run(script, new Library(tables.known, model).globals);
    const objects = model.made.length;
    if (stopped && stopped.isRefused) {
        tell({kind: 'refused', message: stopped.message});
        return;
    }
    const {comparison, result} = compareDrawings(tables, model, {lines: lines, losses: job.losses, assumed: job.assumed,
        map: job.map, macro: job.macro, written: job.written, stopped: stopped});
    tell(Object.assign(result, {kind: 'done', objects: objects, drawn: drawnPrimitives(comparison),
        handles: handlesByKind(comparison, result, job.losses)}));
}

function listen() {
    Error.stackTraceLimit = stackDepth;
    window.addEventListener('message', ({source, data, ports}) => {
        if (source !== window.parent) {
            return;
        }
        // Taken before the macro runs, which may put something else in its place.
        const post = MessagePort.prototype.postMessage.bind(ports[0]);
        const tell = news => post(Object.assign({run: data.run}, news));
        try {
            runJob(data, (script, globals) => {
                Object.assign(window, globals);
                return runScript(script);
            }, tell);
        } catch (error) {
            tell({kind: 'failed', message: error.message});
        }
    }, {once: true});
}

if (typeof window !== 'undefined') {
    listen();
}
