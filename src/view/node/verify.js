// Runs a repaired macro in node and prints what came of it. Called with the path of its job; tables and scripts stand in
// front of it in one file.

'use strict';

const fs = require('fs');

function verify(job) {
    const read = path => fs.readFileSync(path, 'utf8');
    const tables = new Tables(TEXTS, 'javascript');
    const lines = parseLines(read(job.recording));
    const written = read(job.macro);
    const macro = job.edited === null ? written : read(job.edited);
    const model = startModel(tables, lines);
    // A macro that is as it was written goes straight on; another one may have loops.
    model.lineOf = job.edited === null ? null : runningLine;
    const stopped = runPage(macro, new Library(tables.known, model).globals);
    const report = JSON.parse(read(job.report));
    return compareRun(tables, model, {lines: lines, losses: report.conversions[0].losses,
        assumed: report.conversions[0].assumed, map: JSON.parse(read(job.map)),
        macro: macro, written: written, stopped: stopped});
}

function main(path) {
    const job = JSON.parse(fs.readFileSync(path, 'utf8'));
    const result = verify(job);
    const head = {verificationVersion: verificationVersion, programVersion: job.programVersion, input: job.input,
        macro: job.macroName};
    process.stdout.write(job.json ? JSON.stringify(Object.assign(head, result)) + '\n'
        : verificationText(job.input, result));
    process.exitCode = result.verdict === 'equal' ? 0 : 1;
}

try {
    main(process.argv[2]);
} catch (error) {
    // Another status than those of a comparison.
    process.stderr.write(error.message + '\n');
    process.exitCode = 70;
}
