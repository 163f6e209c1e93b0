// Runs macros and holds the drawings that they make against their recordings. Called with the path of a file that tells
// of the macros; prints what came of each, as JSON.
//
// {target, command, macros: [{name, recording, macro, written, map, losses, assumed}]}: for pages a macro is its page;
// for others `command` starts a program that runs the macros and asks for each what stubs/csharp/Noting.cs asks.
// `written` is the macro that the map is of.

'use strict';

const fs = require('fs');
const {spawn} = require('child_process');
const web = require('../web/web');
const {runPage, runningLine} = require('../../src/view/node/page');

const job = JSON.parse(fs.readFileSync(process.argv[2], 'utf8'));
const tables = new web.Tables(web.texts, job.target);
const read = path => fs.readFileSync(path, 'utf8').replace(/^\uFEFF/, '');

function begin(macro) {
    const lines = web.parseLines(read(macro.recording));
    return {macro: macro, lines: lines, model: web.startModel(tables, lines)};
}

function end({macro, lines, model}, stopped) {
    return {name: macro.name, result: web.compareRun(tables, model, {lines: lines, losses: macro.losses,
        assumed: macro.assumed, map: JSON.parse(read(macro.map)), macro: read(macro.macro), written: read(macro.written),
        stopped: stopped})};
}

function runPages() {
    return job.macros.map(macro => {
        const run = begin(macro);
        run.model.lineOf = macro.macro === macro.written ? null : runningLine;
        return end(run, runPage(read(macro.macro), new web.Library(tables.known, run.model).globals));
    });
}

// The things of one macro by the numbers that it knows them by.
class Things {
    constructor() {
        this.list = [];
        this.numbers = new Map();
    }

    number(thing) {
        if (!this.numbers.has(thing)) {
            this.numbers.set(thing, this.list.length);
            this.list.push(thing);
        }
        return this.numbers.get(thing);
    }

    value(told) {
        return Array.isArray(told) ? told.map(one => this.value(one))
            : told !== null && typeof told === 'object' ? this.list[told.thing] : told;
    }

    // An answer of a type of interface.txt.
    told(type, answer) {
        if (Array.isArray(answer)) {
            return answer.map(one => this.told(type.slice(0, -2), one)).join(',');
        }
        if (!(answer instanceof web.Thing)) {
            return answer;
        }
        return this.number(answer) + (type === 'object' ? ' ' + answer.cls.replace('FoundObject', 'Found') : '');
    }
}

function runProgram(done) {
    const program = spawn(job.command[0], job.command.slice(1), {stdio: ['pipe', 'pipe', 'inherit']});
    const byName = new Map(job.macros.map(macro => [macro.name, macro]));
    const ended = [];
    let run = null;
    let things = null;
    let rest = '';
    function hear(line) {
        const told = JSON.parse(line);
        if ('macro' in told) {
            run = begin(byName.get(told.macro));
            things = new Things();
            program.stdin.write(things.number(run.model.application) + '\n');
        } else if ('stopped' in told) {
            ended.push(end(run, told.stopped));
        } else {
            const answers = run.model.call(things.list[told.on], told.call, told.args.map(one => things.value(one)),
                told.types);
            if (answers.length) {
                const texts = answers.map((one, i) => encodeURIComponent(things.told(told.types[i], one)));
                program.stdin.write(texts.join('\t') + '\n');
            }
        }
    }
    program.stdout.setEncoding('utf8');
    program.stdout.on('data', part => {
        const lines = (rest + part).split('\n');
        rest = lines.pop();
        lines.forEach(hear);
    });
    program.on('close', status => done(status === 0 ? ended : []));
}

const print = results => process.stdout.write(JSON.stringify(results));
if (job.command.length) {
    runProgram(print);
} else {
    print(runPages());
}
