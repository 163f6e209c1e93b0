// What the page shows: the recording's steps and objects, the geometry, the macros and what the report tells of them.

'use strict';

const stepKinds = ['command', 'added', 'modified', 'property', 'sysvar', 'interaction', 'selection', 'custom', 'null'];
const keptMacros = 4; // texts that stay open; those of long recordings have tens of megabytes

const handleHalf = 4294967296; // 2^32

// A handle has 64 bits, a number 53.
function handleKey(high, low) {
    return high < 0x200000 ? high * handleHalf + low : high.toString(16) + low.toString(16).padStart(8, '0');
}

function handleText(high, low) {
    return (high ? high.toString(16) + low.toString(16).padStart(8, '0') : low.toString(16)).toUpperCase();
}

function keyOfHandleText(text) {
    if (!/^[0-9A-Fa-f]{1,16}$/.test(text)) {
        return null;
    }
    return handleKey(parseInt(text.slice(0, -8) || '0', 16), parseInt(text.slice(-8), 16));
}

// Which lines of a macro come of which step; lines from 1. A range is {first, last, step, part}.
class LineMap {
    constructor(columns) {
        this.parts = ['frame', 'block', 'declaration', 'statements'];
        this.columns = columns;
        this.count = columns.lines.length;
        this.firsts = new Uint32Array(this.count + 1);
        let line = 1;
        for (let i = 0; i < this.count; ++i) {
            this.firsts[i] = line;
            line += columns.lines[i];
        }
        this.firsts[this.count] = line;
        this.bySteps = null;
    }

    range(i) {
        return {first: this.firsts[i], last: this.firsts[i + 1] - 1, step: this.columns.step[i],
            part: this.parts[this.columns.part[i]]};
    }

    rangeAt(line) {
        const at = lastNotAbove(this.firsts, line, this.count);
        return at < 0 || line >= this.firsts[this.count] ? null : this.range(at);
    }

    rangesOf(step) {
        const steps = this.columns.step;
        if (!this.bySteps) {
            this.bySteps = new Uint32Array(this.count).map((_, i) => i);
            this.bySteps.sort((one, other) => steps[one] - steps[other] || one - other);
        }
        let low = 0;
        for (let high = this.count; low < high;) {
            const middle = low + high >>> 1;
            if (steps[this.bySteps[middle]] < step) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        const ranges = [];
        for (; low < this.count && steps[this.bySteps[low]] === step; ++low) {
            ranges.push(this.range(this.bySteps[low]));
        }
        return ranges;
    }
}

// The repaired text: the recorded one with its hunks in place of what they replace. `added` are the lines of all hunks.
function repairedLines(recorded, hunks, added) {
    const pieces = [];
    let from = 0; // of the recorded lines
    let line = 0; // of the repaired ones
    let taken = 0; // of the added ones
    for (const hunk of hunks) {
        const equal = hunk.repaired[0] - 1 - line;
        pieces.push(recorded.slice(from, from + equal), added.slice(taken, taken + hunk.repaired[1]));
        from += equal + hunk.recorded[1];
        line += equal + hunk.repaired[1];
        taken += hunk.repaired[1];
    }
    pieces.push(recorded.slice(from, recorded.count));
    const bytes = new Uint8Array(pieces.reduce((sum, piece) => sum + piece.length, 0));
    let offset = 0;
    for (const piece of pieces) {
        bytes.set(piece, offset);
        offset += piece.length;
    }
    return new Lines(bytes);
}

function isSameLine(one, other, line, otherLine) {
    const bytes = one.slice(line, line + 1);
    const others = other.slice(otherLine, otherLine + 1);
    return bytes.length === others.length && bytes.every((byte, i) => byte === others[i]);
}

// Where an edited text differs from the written one, as hunks: line by line when it has as many, else from the first
// to the last line that differs.
function editedHunks(written, edited) {
    const most = Math.min(written.count, edited.count);
    if (written.count === edited.count) {
        return Array.from({length: most}, (_, line) => line).filter(line => !isSameLine(written, edited, line, line))
            .map(line => ({recorded: [line + 1, 1], repaired: [line + 1, 1], step: -1}));
    }
    let head = 0;
    while (head < most && isSameLine(written, edited, head, head)) {
        ++head;
    }
    let tail = 0;
    while (tail < most - head && isSameLine(written, edited, written.count - 1 - tail, edited.count - 1 - tail)) {
        ++tail;
    }
    return [{recorded: [head + 1, written.count - head - tail], repaired: [head + 1, edited.count - head - tail],
        step: -1}];
}

// The map of an edited text: what is not within the one hunk where the numbers of lines change is as it was.
function editedMap(map, hunks) {
    const hunk = hunks.find(one => one.recorded[1] !== one.repaired[1]);
    if (!hunk) {
        return map;
    }
    const columns = {lines: [], step: [], part: []};
    const add = (count, step, part) => {
        if (count > 0) {
            columns.lines.push(count);
            columns.step.push(step);
            columns.part.push(part);
        }
    };
    const [first, count] = hunk.recorded;
    const addPart = (from, end) => {
        for (let i = 0; i < map.count; ++i) {
            add(Math.min(map.firsts[i + 1], end) - Math.max(map.firsts[i], from), map.columns.step[i],
                map.columns.part[i]);
        }
    };
    addPart(1, first);
    add(hunk.repaired[1], -1, 0);
    addPart(first + count, Infinity);
    return new LineMap(columns);
}

// Promises by name, of which only those that were asked for last stay.
class Kept {
    constructor(count) {
        this.count = count;
        this.promises = new Map();
    }

    get(name, make) {
        const promise = this.promises.get(name) || make();
        this.promises.delete(name);
        this.promises.set(name, promise);
        if (this.promises.size > this.count) {
            this.promises.delete(this.promises.keys().next().value);
        }
        return promise;
    }
}

// The tag of the property that a note is about, '' for one about something else.
function propertyOf(what) {
    return (/^property "([^]*)" of /.exec(what) || ['', ''])[1];
}

class Data {
    // `piecesOf` gives the base64 texts of an island by its name, null for one that the page does not have; with `true`
    // behind the name it may forget them.
    constructor(piecesOf) {
        this.piecesOf = piecesOf;
        this.recording = null;
        this.openingRecording = null;
        this.lastLine = {line: 0, json: null};
        this.kept = new Kept(keptMacros);
        this.keptMaps = new Kept(keptMacros * 2);
        this.objectNumbers = null;
        this.firstSteps = null;
    }

    hasIsland(name) {
        return this.piecesOf(name) !== null;
    }

    async island(name, isOnce = false) {
        const pieces = this.piecesOf(name, isOnce);
        if (!pieces) {
            throw new Error('the page does not have the data "' + name + '"');
        }
        try {
            return await inflated(pieces.map(bytesOfBase64));
        } catch (error) {
            throw new Error('the data "' + name + '" of the page are damaged');
        }
    }

    async json(name, isOnce = false) {
        return JSON.parse(new TextDecoder('utf-8').decode(await this.island(name, isOnce)));
    }

    async columns(name, isOnce = false) {
        return columnsOf(await this.island(name, isOnce), this.index.layout[name]);
    }

    // `told` is called with the share that is open.
    async open(told = () => {}) {
        this.index = await this.json('index', true);
        const names = ['steps', 'stepHandles', 'objects', 'geometry'];
        let opened = 0;
        const tell = value => {
            told(++opened / (names.length + 1));
            return value;
        };
        const [steps, handles, objects, geometry, texts] = await Promise.all([
            ...names.map(name => this.columns(name, true).then(tell)), this.json('texts', true).then(tell)]);
        this.texts = texts;
        this.openSteps(steps, handles);
        this.openObjects(objects);
        this.openGeometry(geometry);
        this.notes = this.index.notes.map(note => Object.assign({property: propertyOf(note.what)}, note));
        return this;
    }

    // The recording's own text, which nothing but the values of steps needs.
    openRecording() {
        this.openingRecording = this.openingRecording || this.island('recording').then(bytes => {
            this.recording = new Lines(bytes);
        });
        return this.openingRecording;
    }

    openSteps(columns, handles) {
        const count = columns.line.length;
        const firsts = new Uint32Array(count + 1);
        for (let i = 0; i < count; ++i) {
            firsts[i + 1] = firsts[i] + columns.handles[i];
        }
        this.steps = Object.assign(columns, {count: count, handleFirst: firsts});
        this.stepHandles = handles;
    }

    openObjects(columns) {
        this.objects = Object.assign(columns, {count: columns.cls.length,
            handle: i => handleText(columns.high[i], columns.low[i] >>> 0)});
    }

    openGeometry(columns) {
        const count = columns.shape.length;
        const firsts = new Uint32Array(count + 1);
        for (let i = 0; i < count; ++i) {
            firsts[i + 1] = firsts[i] + columns.count[i];
        }
        this.geometry = Object.assign(columns, {counts: columns.count, count: count, first: firsts});
    }

    text(number) {
        return this.texts[number];
    }

    className(cls) {
        return cls < this.index.classes.length ? this.index.classes[cls].name : '';
    }

    classWords(cls) {
        return cls < this.index.classes.length ? this.index.classes[cls].words : '';
    }

    // A command's or a variable's name, a custom action's in words.
    stepName(step) {
        return this.index.names[this.steps.name[step]] || '';
    }

    kindOf(step) {
        return stepKinds[this.steps.kind[step]];
    }

    handleOfStep(step, which = 0) {
        const at = this.steps.handleFirst[step] + which;
        return at < this.steps.handleFirst[step + 1]
            ? handleText(this.stepHandles.high[at], this.stepHandles.low[at] >>> 0) : '';
    }

    objectAt(stepHandle) {
        if (!this.objectNumbers) {
            const {high, low, count} = this.objects;
            this.objectNumbers = new Map();
            for (let i = 0; i < count; ++i) {
                this.objectNumbers.set(handleKey(high[i], low[i] >>> 0), i);
            }
        }
        const number = this.objectNumbers.get(stepHandle);
        return number === undefined ? -1 : number;
    }

    objectByHandle(text) {
        return this.objectAt(keyOfHandleText(text));
    }

    // The handle of what a step is about; '' where that is more than one thing or none.
    handleText(step) {
        const kind = this.kindOf(step);
        const object = kind === 'selection' ? -1 : this.objectOfStep(step);
        if (object >= 0) {
            return this.objects.handle(object);
        }
        return ['added', 'modified', 'property'].includes(kind) ? this.handleOfStep(step) : '';
    }

    // The objects with a step's handles, as far as they are there.
    objectsOfStep(step) {
        const objects = [];
        for (let at = this.steps.handleFirst[step]; at < this.steps.handleFirst[step + 1]; ++at) {
            const object = this.objectAt(handleKey(this.stepHandles.high[at], this.stepHandles.low[at] >>> 0));
            if (object >= 0) {
                objects.push(object);
            }
        }
        return objects;
    }

    // The number of the object that a step is about: the one that it adds, else the first of them; -1 for a command.
    objectOfStep(step) {
        if (step < 0 || this.kindOf(step) === 'command') {
            return -1;
        }
        const objects = this.objectsOfStep(step);
        const isAbout = object => this.objects.cls[object] === this.steps.cls[step];
        const added = objects.filter(object => this.objects.added[object] === step);
        return [added.find(isAbout), added[0], objects.find(isAbout), objects[0], -1].find(one => one !== undefined);
    }

    // The step that adds it, else the first that changes it, else -1.
    stepOfObject(object) {
        if (object < 0) {
            return -1;
        }
        if (!this.firstSteps) {
            this.firstSteps = this.objects.added.slice();
            for (let step = this.steps.count - 1; step >= 0; --step) {
                const objects = this.kindOf(step) === 'command' ? [] : this.objectsOfStep(step);
                for (const object of objects) {
                    if (this.objects.added[object] < 0) {
                        this.firstSteps[object] = step;
                    }
                }
            }
        }
        return this.firstSteps[object];
    }

    pathOf(step) {
        const parent = this.steps.parent[step];
        if (parent < 0) {
            return '';
        }
        const above = this.pathOf(parent);
        return (above ? above + '.' : '') + 'command.actions[' + this.steps.child[step] + ']';
    }

    // The outermost command that holds it, or the step itself.
    commandOf(step) {
        let above = step;
        while (above >= 0 && this.steps.parent[above] >= 0) {
            above = this.steps.parent[above];
        }
        return above;
    }

    // The innermost step of a line (from 1) that a path, as the report names them, leads to or into; -1 for none.
    stepAt(line, path) {
        const {count} = this.steps;
        let found = -1;
        for (let step = lastNotAbove(this.steps.line, line - 1, count) + 1;
            step < count && this.steps.line[step] === line; ++step) {
            const own = this.pathOf(step);
            if (path === own || path.startsWith(own) && (own === '' || path[own.length] === '.')) {
                found = step;
            }
        }
        return found;
    }

    // What the recording says of a step, as it stands there, once that is open.
    action(step) {
        const line = this.steps.line[step];
        if (this.lastLine.line !== line) {
            this.lastLine = {line: line, json: JSON.parse(this.recording.line(line - 1))};
        }
        const children = [];
        for (let at = step; this.steps.parent[at] >= 0; at = this.steps.parent[at]) {
            children.unshift(this.steps.child[at]);
        }
        return children.reduce((action, child) => action.command.actions[child], this.lastLine.json);
    }

    target(name) {
        return this.index.targets.find(target => target.name === name) || null;
    }

    // 'differences' are those of the repaired one.
    formOf(target, form) {
        const forms = (this.target(target) || {forms: {}}).forms;
        return forms[form === 'differences' ? 'repaired' : form] || null;
    }

    // The form in which what is wrong stands: as recorded, where there is one.
    faultyForm(target, form) {
        const recorded = this.formOf(target, 'recorded');
        return form !== 'edited' && recorded && recorded.status === 0 ? 'recorded' : form;
    }

    faults(target, form) {
        const one = this.formOf(target, form);
        return one && one.faults || [];
    }

    notesOf(target, form) {
        const one = this.formOf(target, form);
        return (one && one.notes || []).map(number => this.notes[number]);
    }

    // Lines of a macro; a form that failed has none.
    macro(target, form) {
        return this.kept.get(target + ' ' + form, () => this.openMacro(target, form));
    }

    async openMacro(target, form) {
        const one = this.formOf(target, form);
        if (!one || one.status !== 0) {
            return new Lines(new Uint8Array(0));
        }
        const recorded = this.formOf(target, 'recorded');
        if (form === 'repaired' && recorded && recorded.status === 0) {
            const hunks = await this.hunks(target);
            const lines = await this.macro(target, 'recorded');
            return hunks.length ? repairedLines(lines, hunks, await this.repairedText(target)) : lines;
        }
        return new Lines(await this.island(one.text));
    }

    async repairedText(target) {
        return new Lines(await this.island('repair.' + target + '.text'));
    }

    // null for a form without one.
    map(target, form) {
        return this.keptMaps.get('map ' + target + ' ' + form, async () => {
            const one = this.formOf(target, form);
            if (form === 'edited' && one) {
                const written = await this.map(target, this.writtenForm(target));
                return written && editedMap(written, await this.hunks(target, form));
            }
            return one && one.hasMap ? new LineMap(await this.columns('map.' + target + '.' + form)) : null;
        });
    }

    // Of which the edited one was made.
    writtenForm(target) {
        const repaired = this.formOf(target, 'repaired');
        return repaired && repaired.status === 0 ? 'repaired' : 'recorded';
    }

    // Where the repaired text differs from the recorded one, none where only one of them is there; or the edited one
    // from what was written.
    hunks(target, form = 'repaired') {
        return this.keptMaps.get('hunks ' + target + ' ' + form, async () => {
            if (form === 'edited') {
                return editedHunks(await this.macro(target, this.writtenForm(target)), await this.macro(target, form));
            }
            const name = 'repair.' + target;
            if (!this.index.layout[name]) {
                return [];
            }
            const columns = await this.columns(name);
            return Array.from(columns.step, (step, i) => ({
                recorded: [columns.recordedFirst[i], columns.recordedCount[i]],
                repaired: [columns.repairedFirst[i], columns.repairedCount[i]], step: step}));
        });
    }
}

// Of a kind of fault each line that has it counts.
function countFaults(faults) {
    return faults.reduce((sum, fault) => sum + Math.max(1, fault.lines.length), 0);
}

// Reads the islands of a document: elements of the name, and of the name with .1, .2 and so on.
function islandsOf(document) {
    const elementOf = id => document.querySelector('script[id="' + id + '"]');
    return (name, isOnce = false) => {
        const pieces = [];
        for (let piece = elementOf(name); piece; piece = elementOf(name + '.' + pieces.length)) {
            pieces.push(piece.textContent);
            if (isOnce) {
                piece.remove(); // it takes as much memory as what was read from it
            }
        }
        return pieces.length ? pieces : null;
    };
}

function openData(document, told) {
    return new Data(islandsOf(document)).open(told);
}
