// The pane of the steps: what was recorded, in order, with what the report tells of it.

'use strict';

let knownRowHeight = 0; // asked of the style once, and when the page becomes that of a phone or no longer is

function rowHeight() {
    knownRowHeight = knownRowHeight
        || parseFloat(getComputedStyle(document.documentElement).getPropertyValue('--row')) || 24;
    return knownRowHeight;
}

// What a step is, in words.
function stepWords(data, step) {
    const words = data.classWords(data.steps.cls[step]);
    const name = data.stepName(step);
    const count = data.steps.handles[step];
    return {
        command: name || 'command without a name', added: words, modified: words + ' changed',
        property: words + (name ? ': ' + name : ' changed'), sysvar: 'variable ' + name,
        interaction: name ? 'prompt “' + name + '”' : 'prompt', selection: countOf(count, 'object') + ' selected',
        custom: name || 'custom action', null: 'empty place'
    }[data.kindOf(step)];
}

function findingElement(finding) {
    return putText(element('p', {class: 'finding ' + finding.kind + ' recordedText'},
        element('b', {}, finding.word + ':'), ' '), finding.text);
}

// What the report says of each step, for one form of one target: rows of {kind, word, text}. `map` is that of the form
// in which the faults stand.
class Findings {
    constructor(data, target, form, map) {
        this.byStep = new Map();
        this.ofKinds = new Map();
        for (const note of data.notesOf(target, form)) {
            const isLoss = note.kind === 'loss';
            const what = note.property ? 'property “' + note.property + '”, ' : '';
            this.add(note.step, {kind: isLoss ? 'lost' : 'assumed',
                word: isLoss ? note.property ? 'partly lost' : 'lost' : 'assumed', text: what + note.reason});
        }
        for (const fault of data.faults(target, data.faultyForm(target, form))) {
            const steps = new Set(fault.lines.map(line => map && map.rangeAt(line))
                .filter(range => range && range.step >= 0).map(range => range.step));
            for (const step of steps) {
                this.add(step, {kind: 'faults', word: fault.mended ? 'fault, repaired' : 'fault', text: fault.reason});
            }
        }
    }

    add(step, finding) {
        if (step < 0) {
            return;
        }
        if (!this.byStep.has(step)) {
            this.byStep.set(step, []);
        }
        this.byStep.get(step).push(finding);
    }

    of(step) {
        return this.byStep.get(step) || [];
    }

    // Steps with a finding of a kind, or with any, in order.
    steps(kind = '') {
        if (!this.ofKinds.has(kind)) {
            const steps = [...this.byStep.keys()].filter(step => !kind || this.of(step).some(one => one.kind === kind));
            this.ofKinds.set(kind, Uint32Array.from(steps).sort());
        }
        return this.ofKinds.get(kind);
    }
}

// Each chip's steps, of which `shown` has 1 for those that the filter shows.
function stepsOfChip(data, chip, findings) {
    const {count, kind} = data.steps;
    const marked = new Uint8Array(count);
    if (chip === 'changes') {
        for (let step = 0; step < count; ++step) {
            marked[step] = stepKinds[kind[step]] === 'modified' || stepKinds[kind[step]] === 'property' ? 1 : 0;
        }
    } else {
        findings.steps(chip).forEach(step => {
            marked[step] = 1;
        });
    }
    return marked;
}

// The steps that are shown: those of the filter and the chip, with the commands that hold them. null for all.
function shownSteps(data, filter, chip, findings) {
    if (!filter.trim() && chip === 'all') {
        return null;
    }
    const {count, parent} = data.steps;
    const shown = stepsWith(data, filter);
    if (chip !== 'all') {
        const marked = stepsOfChip(data, chip, findings);
        for (let step = 0; step < count; ++step) {
            shown[step] &= marked[step];
        }
        for (let step = count - 1; step >= 0; --step) {
            if (shown[step] && parent[step] >= 0) {
                shown[parent[step]] = 1;
            }
        }
    }
    const steps = [];
    for (let step = 0; step < count; ++step) {
        if (shown[step]) {
            steps.push(step);
        }
    }
    return Uint32Array.from(steps);
}

const chipNames = {all: 'All', lost: 'Lost', faults: 'Faults', assumed: 'Assumed', changes: 'Changes'};

class StepsPane {
    constructor(data, pane) {
        this.data = data;
        this.names = new HandleNames(data);
        this.findings = new Findings(data, '', '', null);
        this.shown = null;
        this.changes = stepsOfChip(data, 'changes', null).reduce((sum, one) => sum + one, 0);
        this.build(pane);
        state.on(['target', 'form'], () => this.readFindings());
        state.on(['filter', 'chip'], () => this.filter());
        state.on(['chosen'], (values, source) => this.choose(values.chosen, source));
        state.on(['hover'], values => this.hover(values.hover));
        state.on(['step'], values => this.dim(values.step));
    }

    build(pane) {
        const {data} = this;
        this.field = element('input', {type: 'search', id: 'filter', 'aria-label': 'Filter the steps',
            autocomplete: 'off', spellcheck: 'false', placeholder: 'Filter: command, layer, class, text'});
        this.field.addEventListener('input', () => {
            clearTimeout(this.timer);
            this.timer = setTimeout(() => state.set({filter: this.field.value}, 'steps'),
                data.steps.count > 5000 ? 150 : 0);
        });
        this.field.addEventListener('keydown', event => {
            if (event.key === 'Escape' && this.field.value) {
                this.field.value = '';
                state.set({filter: ''}, 'steps');
                event.stopPropagation();
            } else if (event.key === 'ArrowDown') {
                this.list.scroller.focus();
                event.preventDefault();
            }
        });
        this.chips = element('div', {class: 'chips', role: 'group', 'aria-label': 'Show'});
        this.there = element('div', {class: 'thereBox', hidden: true});
        this.nothing = element('p', {class: 'nothing', hidden: true});
        const scroller = element('div', {id: 'stepList'});
        this.overview = element('div', {class: 'overview', 'aria-hidden': 'true'});
        pane.append(element('div', {class: 'paneHead'}, element('h2', {}, 'Steps'),
            element('span', {class: 'muted'}, countOf(data.index.counts.objects, 'object'))),
        element('div', {class: 'filterBox'}, this.field, this.chips), this.there, this.nothing,
        element('div', {class: 'listBox'}, scroller, this.overview));
        this.list = new WindowedList(scroller, {label: 'Steps', rowHeight: rowHeight, makeRow: row => this.makeRow(row),
            isMeasured: row => this.isTall(this.stepOf(row)), headOf: row => this.headOf(row),
            move: (row, isEnter) => this.move(row, isEnter)});
        scroller.addEventListener('mousemove', event => this.point(event));
        scroller.addEventListener('mouseleave', () => state.set({hover: nothingChosen}, 'steps'));
        matchMedia(phoneWidth).addEventListener('change', () => {
            knownRowHeight = 0;
            this.filter();
        });
        this.readFindings();
        // Not before the first picture.
        setTimeout(() => data.openRecording().then(() => this.choose(state.get().chosen, 'recording')), 50);
    }

    get rowCount() {
        return this.shown ? this.shown.length : this.data.steps.count;
    }

    stepOf(row) {
        return this.shown ? this.shown[row] : row;
    }

    // The row of a step, -1 for one that the filter hides.
    rowOf(step) {
        if (!this.shown) {
            return step;
        }
        const row = lastNotAbove(this.shown, step);
        return row >= 0 && this.shown[row] === step ? row : -1;
    }

    headOf(row) {
        const command = this.data.commandOf(this.stepOf(row));
        return this.data.kindOf(command) === 'command' ? this.rowOf(command) : -1;
    }

    isTall(step) {
        return step === this.opened || this.findings.byStep.has(step);
    }

    // Of the height of a row; a finding has two lines mostly.
    estimate(step, height = rowHeight()) {
        return height + this.findings.of(step).length * 41;
    }

    estimates() {
        const height = rowHeight();
        const heights = [];
        for (const step of this.findings.steps()) {
            const row = this.rowOf(step);
            if (row >= 0) {
                heights.push([row, this.estimate(step, height)]);
            }
        }
        return heights;
    }

    async readFindings() {
        const {target, form} = state.get();
        const map = await this.data.map(target, this.data.faultyForm(target, form));
        if (target !== state.get().target || form !== state.get().form) {
            return;
        }
        this.findings = new Findings(this.data, target, form, map);
        this.filter();
    }

    showChips() {
        const counts = {changes: this.changes};
        for (const kind of ['lost', 'faults', 'assumed']) {
            counts[kind] = this.findings.steps(kind).length;
        }
        const {chip} = state.get();
        const hadFocus = this.chips.contains(document.activeElement);
        empty(this.chips);
        for (const name of Object.keys(chipNames)) {
            if (name === 'all' || counts[name] || name === chip) {
                const text = chipNames[name] + (name === 'all' ? '' : ' ' + counts[name].toLocaleString('en'));
                const made = button(text, {class: 'chip', 'aria-pressed': String(name === chip)},
                    () => state.set({chip: name === state.get().chip ? 'all' : name}, 'steps'));
                this.chips.append(made);
                if (hadFocus && name === chip) {
                    made.focus();
                }
            }
        }
    }

    filter() {
        const {filter, chip, chosen} = state.get();
        if (this.field.value !== filter && document.activeElement !== this.field) {
            this.field.value = filter;
        }
        this.shown = shownSteps(this.data, filter, chip, this.findings);
        this.showChips();
        this.list.setCount(this.rowCount, this.estimates());
        const marked = [...this.findings.steps()].map(step => this.rowOf(step)).filter(row => row >= 0);
        showMarks(this.overview, this.list, marked, row => this.findings.of(this.stepOf(row))[0].kind);
        const isEmpty = this.rowCount === 0;
        this.nothing.hidden = !isEmpty;
        this.nothing.textContent = this.data.steps.count ? 'No step is like that.' : 'The recording has no steps.';
        const at = this.rowOf(chosen.step);
        if (chosen.step >= 0 && at >= 0) {
            this.list.setActive(at);
            this.list.show(at);
        }
    }

    makeRow(row) {
        const step = this.stepOf(row);
        const made = element('div', {class: 'step'});
        const kind = this.data.kindOf(step);
        made.classList.toggle('isLater', step >= state.get().step);
        made.classList.toggle('isCommand', kind === 'command');
        made.classList.toggle('isChosen', step === this.opened);
        made.append(kind === 'command' ? this.commandLine(step) : this.actionLine(step));
        for (const finding of this.findings.of(step)) {
            made.append(findingElement(finding));
        }
        if (step === this.opened && kind !== 'command') {
            made.append(this.values(step));
        }
        return made;
    }

    depthOf(step) {
        let depth = 0;
        for (let above = this.data.steps.parent[step]; above >= 0; above = this.data.steps.parent[above]) {
            ++depth;
        }
        return Math.min(depth, 8);
    }

    commandLine(step) {
        const line = element('div', {class: 'stepLine'},
            textElement('span', {class: 'stepWords'}, stepWords(this.data, step)),
            element('span', {class: 'stepPlace'}, 'line ' + this.data.steps.line[step]));
        line.style.paddingLeft = 10 + this.depthOf(step) * 12 + 'px';
        return line;
    }

    actionLine(step) {
        const {data} = this;
        const kind = data.kindOf(step);
        const line = element('div', {class: 'stepLine'}, stepIcon(data, step),
            textElement('span', {class: 'stepWords'}, stepWords(data, step)));
        const object = data.objectOfStep(step);
        if (kind === 'added' && object >= 0 && !data.objects.isDrawn[object] && data.objects.hasGeometry[object]) {
            const remark = data.objects.remark[object];
            line.append(element('span', {class: 'badge plain',
                title: remark ? visibleText(data.index.remarks[remark - 1]) : null}, 'not drawn'));
        }
        const handle = data.handleText(step);
        line.append(element('span', {class: 'stepPlace'},
            handle || (data.steps.parent[step] < 0 ? 'line ' + data.steps.line[step] : '')));
        line.style.paddingLeft = 10 + Math.max(0, this.depthOf(step) - 1) * 12 + 'px';
        return line;
    }

    // Of the step as recorded, and why it is not drawn, if so.
    values(step) {
        const {data} = this;
        const box = element('div', {class: 'stepValues'});
        const object = data.objectOfStep(step);
        const remark = object >= 0 && data.kindOf(step) === 'added' ? data.objects.remark[object] : 0;
        if (remark) {
            box.append(textElement('p', {class: 'remark'}, data.index.remarks[remark - 1]));
        }
        box.append(data.recording ? valuesElement(rowsOfAction(data.action(step), handle => this.names.of(handle)))
            : element('p', {class: 'muted'}, 'Opening…'));
        return box;
    }

    choose(chosen, source) {
        const before = this.opened;
        this.opened = chosen.step;
        for (const step of [before, chosen.step]) {
            const row = step === undefined || step < 0 ? -1 : this.rowOf(step);
            if (row >= 0) {
                this.list.heights.set(row, this.estimate(step));
                this.list.refresh(row);
            }
        }
        this.showThere(chosen);
        const row = chosen.step < 0 ? -1 : this.rowOf(chosen.step);
        this.list.setActive(row);
        if (row >= 0) {
            this.list.draw(); // the opened one has its height then
            if (source === 'steps') {
                this.list.reveal(row);
            } else {
                this.list.show(row);
            }
        } else {
            this.list.draw();
        }
    }

    // An object that was there before and that no step changes has no row.
    showThere(chosen) {
        const {data} = this;
        this.there.hidden = chosen.object < 0 || chosen.step >= 0;
        empty(this.there);
        if (this.there.hidden) {
            return;
        }
        const handle = data.objects.handle(chosen.object);
        const drawn = data.recording && drawnObject(data, handle);
        const cls = data.objects.cls[chosen.object];
        this.there.append(element('div', {class: 'stepLine'}, classIcon(data.className(cls)),
            textElement('span', {class: 'stepWords'}, data.classWords(cls)),
            element('span', {class: 'stepPlace'}, handle)),
        element('p', {class: 'muted'}, 'already there, no step changes it'));
        if (drawn) {
            this.there.append(valuesElement(rowsOfDrawn(drawn, one => this.names.of(one))));
        }
    }

    move(row, isEnter) {
        const step = this.stepOf(row);
        const chosen = {step: step, object: this.data.objectOfStep(step)};
        if (isEnter) {
            centerOthers('steps');
        }
        state.set({chosen: chosen}, 'steps');
    }

    center() {
        const row = state.get().chosen.step < 0 ? -1 : this.rowOf(state.get().chosen.step);
        this.list.show(row, true);
    }

    point(event) {
        const made = event.target.closest('[data-row]');
        const step = made ? this.stepOf(Number(made.dataset.row)) : -1;
        state.set({hover: step < 0 ? nothingChosen : {step: step, object: this.data.objectOfStep(step)}}, 'steps');
    }

    hover(hover) {
        for (const [row, made] of this.list.rows) {
            made.classList.toggle('isHovered', hover.step >= 0 && this.stepOf(row) === hover.step);
        }
    }

    dim(done) {
        for (const [row, made] of this.list.rows) {
            made.classList.toggle('isLater', this.stepOf(row) >= done);
        }
    }
}
