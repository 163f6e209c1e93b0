// Runs a repaired macro in node and prints what came of it. Called with the path of its job; scripts and tables stand in
// front of it in one file.

'use strict';

const fs = require('fs');
const vm = require('vm');

// The text of the page's own script, in the lines where it stands.
function scriptOf(page) {
    const begin = page.lastIndexOf('<script type="text/javascript">');
    const from = page.indexOf('>', begin) + 1;
    const end = page.indexOf('</script>', from);
    return '\n'.repeat(page.slice(0, from).split('\n').length - 1) + page.slice(from, end);
}

// The line of the macro that an error comes of, null when it is none of its own.
function lineOf(error, name) {
    const at = String(error && error.stack).split('\n').map(line => line.lastIndexOf(name + ':') < 0 ? null
        : Number(line.slice(line.lastIndexOf(name + ':') + name.length + 1).split(/\D/)[0])).find(line => line);
    return at || null;
}

// The error that stops it, or null. A macro that ends at once draws nothing, which is no error.
function runPage(page, globals) {
    const name = 'macro.html';
    const context = vm.createContext(Object.assign({}, globals));
    try {
        vm.runInContext(scriptOf(page), context, {filename: name});
        vm.runInContext('runMacro()', context, {filename: 'call'});
        return null;
    } catch (error) {
        return {line: lineOf(error, name), message: error && error.message ? error.message : String(error)};
    }
}

function verify(job) {
    const read = path => fs.readFileSync(path, 'utf8');
    const tables = new Tables(TEXTS, 'javascript');
    const lines = parseLines(read(job.recording));
    const written = read(job.macro);
    const macro = job.edited === null ? written : read(job.edited);
    const model = startModel(tables, lines);
    const stopped = runPage(macro, new Library(tables.known, model).globals);
    const report = JSON.parse(read(job.report));
    return compareRun(tables, model, {lines: lines, losses: report.conversions[0].losses, map: JSON.parse(read(job.map)),
        macro: macro, written: written, stopped: stopped});
}

function main(path) {
    const job = JSON.parse(fs.readFileSync(path, 'utf8'));
    const result = verify(job);
    const head = {verificationVersion: verificationVersion, programVersion: job.programVersion, input: job.input,
        macro: job.macroName};
    fs.writeSync(1, job.json ? JSON.stringify(Object.assign(head, result)) + '\n' : verificationText(job.input, result));
    process.exitCode = result.verdict === 'equal' ? 0 : 1;
}

main(process.argv[2]);
