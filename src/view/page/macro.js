// The pane of the macros: a tab for each target, its text as repaired, as recorded, or both, linked with the steps.

'use strict';

const formNames = {repaired: 'Repaired', recorded: 'As recorded', differences: 'Differences', edited: 'Edited'};
const codeLineHeight = 19; // pixels
const widthOfGutters = 90;

// Lines that are told apart by sorted ranges that do not overlap; lines from 1.
class LineRanges {
    constructor(ranges) {
        const sorted = ranges.slice().sort((one, other) => one.first - other.first);
        this.firsts = sorted.map(range => range.first);
        this.lasts = sorted.map(range => range.last);
    }

    has(line) {
        const at = lastNotAbove(this.firsts, line);
        return at >= 0 && this.lasts[at] >= line;
    }

    get first() {
        return this.firsts.length ? this.firsts[0] : 0;
    }
}

// Of a step and of what it holds.
function rangesOfStep(data, map, step) {
    if (!map || step < 0) {
        return [];
    }
    const ranges = map.rangesOf(step);
    const {count, parent, line} = data.steps;
    if (parent[step] < 0 || data.kindOf(step) === 'command') {
        for (let held = step + 1; held < count && line[held] === line[step]; ++held) {
            let above = parent[held];
            while (above > step) {
                above = parent[above];
            }
            if (above === step) {
                ranges.push(...map.rangesOf(held));
            }
        }
    }
    return ranges;
}

function linesInWords(ranges) {
    const joined = [];
    for (const {first, last} of ranges.slice().sort((one, other) => one.first - other.first)) {
        const before = joined[joined.length - 1];
        if (before && before.last + 1 >= first) {
            before.last = Math.max(before.last, last);
        } else {
            joined.push({first: first, last: last});
        }
    }
    const words = joined.slice(0, 4).map(({first, last}) => first === last ? String(first)
        : first + (last === first + 1 ? ', ' : ' to ') + last);
    const isOne = joined.length === 1 && joined[0].first === joined[0].last;
    return (isOne ? 'line ' : 'lines ') + words.join(', ') + (joined.length > 4 ? ' and more' : '');
}

function addFinding(view, line, finding) {
    view.findings.set(line, [...view.findings.get(line) || [], finding]);
}

// Where the last run of what is shown came to a stop, or null.
function stopOf(run, target, form) {
    const isOfThis = run && run.stopped && run.stopped.line > 0 && run.target === target && run.form === form;
    return isOfThis ? run.stopped : null;
}

// All that the pane shows of one form of one target. `stop` is {line, message} or null.
async function openMacroView(data, target, form, stop) {
    const isDifferent = form === 'differences';
    const shown = isDifferent ? 'repaired' : form;
    const [lines, map, hunks] = await Promise.all([data.macro(target, shown), data.map(target, shown),
        form === 'recorded' ? [] : data.hunks(target, shown)]);
    const view = {target: target, form: form, lines: lines, map: map, hunks: hunks,
        findings: new Map(), stop: stop, painter: new Painter(target), unfolded: new Set()};
    const faulty = isDifferent ? 'recorded' : form;
    for (const fault of data.faults(target, faulty)) {
        for (const line of fault.lines) {
            if (form !== 'repaired' || !fault.mended) {
                addFinding(view, line, {kind: 'faults', word: 'fault', text: fault.reason});
            }
        }
    }
    if (stop) {
        addFinding(view, stop.line, {kind: 'faults', word: 'the run stops here', text: stop.message});
    }
    view.changed = new LineRanges(view.hunks.filter(hunk => hunk.repaired[1]).map(hunk =>
        ({first: hunk.repaired[0], last: hunk.repaired[0] + hunk.repaired[1] - 1})));
    if (isDifferent) {
        [view.recorded, view.recordedMap] = await Promise.all([data.macro(target, 'recorded'),
            data.map(target, 'recorded')]);
        view.rows = new DifferenceRows(hunks, view.recorded.count, lines.count);
    }
    return view;
}

function longestLine(lines) {
    let longest = 0;
    for (let line = 0; line < lines.count; ++line) {
        longest = Math.max(longest, lines.starts[line + 1] - lines.starts[line]);
    }
    return longest;
}

async function copyText(text) {
    try {
        await navigator.clipboard.writeText(text);
    } catch (error) {
        // Some browsers have no clipboard for a page from the disk.
        const field = element('textarea', {class: 'heard'});
        field.value = text;
        document.body.append(field);
        field.select();
        const isCopied = document.execCommand('copy');
        field.remove();
        if (!isCopied) {
            throw error;
        }
    }
}

function saveBytes(bytes, name) {
    const address = URL.createObjectURL(new Blob([bytes], {type: 'application/octet-stream'}));
    const link = element('a', {href: address, download: name});
    document.body.append(link);
    link.click();
    link.remove();
    setTimeout(() => URL.revokeObjectURL(address), 10000);
}

class MacroPane {
    constructor(data, pane) {
        this.data = data;
        this.view = null;
        this.opening = 0;
        this.chosen = new LineRanges([]);
        this.chosenRecorded = new LineRanges([]);
        this.ranges = [];
        this.recordedRanges = [];
        this.build(pane);
        state.on(['target', 'form'], () => this.open());
        state.on(['chosen'], (values, source) => this.choose(values.chosen, source));
        state.on(['hover'], values => this.hover(values.hover));
        state.on(['run'], values => this.seeRun(values.run));
    }

    // Opens anew when a run has stopped elsewhere than the one before.
    seeRun(run) {
        if (this.view && run && run.state !== 'running'
            && stopOf(run, this.view.target, this.view.form) !== this.view.stop) {
            this.open();
        }
    }

    build(pane) {
        const {data} = this;
        this.tabRow = element('div', {class: 'targetTabs', 'aria-label': 'Targets'});
        this.tabs = data.index.targets.map(target => ({name: target.name, made: this.makeTab(target)}));
        this.tabRow.append(...this.tabs.map(tab => tab.made));
        bindTabs(this.tabRow, this.tabs, name => state.set({target: name}, 'macro'));
        this.forms = element('div', {class: 'segments', role: 'group', 'aria-label': 'Form'});
        this.copyButton = button('Copy', {title: 'Copy the text of the macro'}, () => this.copy());
        this.saveButton = button('Save', {title: 'Save the macro as a file'}, () => this.save());
        this.failure = element('div', {class: 'failure', hidden: true});
        this.foot = element('p', {class: 'macroFoot'});
        const scroller = element('div', {id: 'macroList', class: 'code'});
        this.overview = element('div', {class: 'overview', 'aria-hidden': 'true'});
        pane.append(this.tabRow, element('div', {class: 'macroBar'}, this.forms, this.copyButton, this.saveButton),
            this.failure, element('div', {class: 'listBox'}, scroller, this.overview),
            element('div', {class: 'macroEnd'}, this.foot, this.makeHints()));
        this.list = new WindowedList(scroller, {label: 'Lines of the macro', rowHeight: () => codeLineHeight,
            makeRow: row => this.makeRow(row), move: (row, isEnter, isClick) => this.move(row, isEnter, isClick)});
        scroller.addEventListener('mousemove', event => this.point(event));
        scroller.addEventListener('mouseleave', () => state.set({hover: nothingChosen}, 'macro'));
        this.open();
    }

    makeHints() {
        this.hints = element('p', {class: 'hints', 'aria-hidden': 'true'}, element('kbd', {}, 'n'), ' ',
            element('kbd', {}, 'p'), ' ', element('span', {}), ' ', element('kbd', {}, '?'), ' keys');
        return this.hints;
    }

    makeTab(target) {
        const {recorded, repaired} = target.forms;
        const form = recorded || repaired || {status: 0, faults: []};
        const faults = countFaults(form.faults);
        const [kind, text, words] = form.status !== 0 || repaired && repaired.status !== 0 ? ['fault', 'failed', 'conversion failed']
            : faults ? ['fault', String(faults), countOf(faults, 'fault')] : ['good', '✓', 'no faults'];
        return element('button', {type: 'button', class: 'tab', 'aria-controls': 'macroList'}, target.title + ' ',
            element('span', {class: 'badge ' + kind, title: words, 'aria-label': words}, text));
    }

    // Makes the view that the state asks for; what was asked for before that and comes later is not shown.
    async open() {
        const {target, form} = state.get();
        const opening = ++this.opening;
        selectTab(this.tabs, target);
        const made = this.tabs.find(tab => tab.name === target);
        if (made) {
            made.made.scrollIntoView({block: 'nearest', inline: 'nearest'});
        }
        this.showForms(target, form);
        const one = this.data.formOf(target, form);
        if (!one || one.status !== 0) {
            this.showFailure(one ? 'The conversion failed.' : 'The page does not have this form.', one ? one.error : '');
            return;
        }
        const view = await this.opened(opening, target, form);
        if (view && opening === this.opening) {
            this.show(view);
        }
    }

    // null when it cannot be read, which is told. What was shown before goes when this takes a while.
    async opened(opening, target, form) {
        const tellHere = (title, text) => opening === this.opening && this.showFailure(title, text);
        const timer = setTimeout(() => tellHere('', 'Opening…'), 200);
        try {
            return await openMacroView(this.data, target, form, stopOf(state.get().run, target, form));
        } catch (error) {
            tellHere('The macro cannot be shown.', error.message);
            return null;
        } finally {
            clearTimeout(timer);
        }
    }

    show(view) {
        this.view = view;
        this.failure.hidden = true;
        this.copyButton.disabled = this.saveButton.disabled = false;
        const letters = Math.max(longestLine(view.lines), view.recorded ? longestLine(view.recorded) : 0);
        this.list.space.style.minWidth = 'calc(' + Math.min(letters, 1000000) + 'ch + ' + widthOfGutters + 'px)';
        this.list.scroller.setAttribute('aria-label', this.data.target(view.target).title + ', '
            + countOf(view.lines.count, 'line'));
        this.list.scroller.classList.toggle('isDifferent', view.form === 'differences');
        this.readChoice(state.get().chosen);
        this.countRows();
        this.showMarks();
        this.showFoot();
        const line = this.chosen.first || view.stop && view.stop.line;
        if (line) {
            this.list.setActive(this.rowOfLine(line));
            this.list.show(this.rowOfLine(line), true);
        } else {
            this.list.scrollTo(this.list.heights.top(Math.max(0, this.firstRow() - linesAround)));
        }
    }

    countRows() {
        const {rows, lines} = this.view;
        this.list.setCount(rows ? rows.count : lines.count,
            this.rowsWithFindings().map(row => [row, codeLineHeight * (1 + this.findingsAt(row).length)]));
    }

    // The first one that a step has to do with: much of a macro's head is the same in every macro.
    firstRow() {
        const {view} = this;
        if (view.rows) {
            return 0;
        }
        if (view.form === 'edited' && view.hunks.length) {
            return view.hunks[0].repaired[0] - 1;
        }
        for (let i = 0; view.map && i < view.map.count; ++i) {
            if (view.map.columns.step[i] >= 0) {
                return view.map.firsts[i] - 1;
            }
        }
        return 0;
    }

    showForms(target, form) {
        const {forms} = this.data.target(target) || {forms: {}};
        const hadFocus = this.forms.contains(document.activeElement);
        empty(this.forms);
        for (const name of Object.keys(formNames)) {
            const isThere = name === 'differences' ? Boolean(forms.recorded && forms.recorded.status === 0
                && forms.repaired && forms.repaired.status === 0) : Boolean(forms[name]);
            if (name === 'edited' && !isThere) {
                continue;
            }
            const made = button(formNames[name], {'aria-pressed': String(name === form), disabled: !isThere},
                () => state.set({form: name}, 'macro'));
            this.forms.append(made);
            if (hadFocus && name === form) {
                made.focus();
            }
        }
    }

    // In place of the lines.
    showFailure(title, text) {
        this.view = null;
        this.failure.hidden = false;
        this.failure.classList.toggle('isWaiting', !title);
        empty(this.failure).append(element('p', {}, element('b', {}, title)), textElement('p', {}, text));
        this.copyButton.disabled = this.saveButton.disabled = true;
        empty(this.overview);
        this.list.setCount(0);
        this.list.space.style.minWidth = '';
        this.showFoot();
    }

    // Kind of a row, its lines, and the text that it shows.
    rowAt(row) {
        const {rows} = this.view;
        return rows ? rows.row(row) : {kind: differenceKinds.equal, recorded: 0, repaired: row + 1, count: 1};
    }

    findingsAt(row) {
        const {view} = this;
        const {kind, recorded, repaired} = this.rowAt(row);
        if (!view.rows) {
            return view.findings.get(repaired) || [];
        }
        const isRecorded = kind === differenceKinds.removed || kind === differenceKinds.equal;
        return isRecorded && view.findings.get(recorded) || [];
    }

    // Without a look at each of hundreds of thousands of rows.
    rowsWithFindings() {
        const {view} = this;
        if (!view.rows) {
            return [...view.findings.keys()].map(line => line - 1).filter(row => row < view.lines.count);
        }
        return Array.from({length: view.findings.size ? view.rows.count : 0}, (_, row) => row)
            .filter(row => this.findingsAt(row).length);
    }

    rowOfLine(line) {
        return this.view.rows ? this.view.rows.rowOfRepaired(line) : line - 1;
    }

    makeRow(row) {
        const {view} = this;
        const {kind, recorded, repaired, count} = this.rowAt(row);
        if (kind === differenceKinds.folded) {
            return element('div', {class: 'codeRow isFolded', title: 'Click or Enter shows them'},
                '··· ' + countOf(count, 'equal line'));
        }
        const made = element('div', {class: 'codeRow'});
        const isRemoved = kind === differenceKinds.removed;
        const isAdded = kind === differenceKinds.added;
        const gutter = element('span', {class: 'gutter'});
        if (view.rows) {
            gutter.append(element('span', {class: 'number'}, isAdded ? '' : String(recorded)));
        }
        gutter.append(element('span', {class: 'number'}, isRemoved ? '' : String(repaired)),
            this.makeSign(isRemoved, isAdded, repaired));
        made.append(element('div', {class: 'codeLine'}, gutter,
            paintInto(element('code', {}), this.pieces(isRemoved, isAdded, recorded, repaired))));
        made.classList.toggle('isRemoved', isRemoved);
        made.classList.toggle('isAdded', isAdded);
        made.classList.toggle('isChosen', isRemoved ? this.chosenRecorded.has(recorded) : this.chosen.has(repaired));
        for (const finding of this.findingsAt(row)) {
            made.append(findingElement(finding));
        }
        return made;
    }

    makeSign(isRemoved, isAdded, repaired) {
        const isChanged = !this.view.rows && this.view.changed.has(repaired);
        const [text, title] = isRemoved ? ['−', 'as recorded'] : isAdded ? ['+', 'repaired']
            : isChanged ? ['●', this.view.form === 'edited' ? 'edited' : 'changed by the repair'] : ['', null];
        return element('span', {class: isChanged ? 'sign isDot' : 'sign', title: title}, text);
    }

    // Of a line and, where it is paired, what its partner does not have marked.
    pieces(isRemoved, isAdded, recorded, repaired) {
        const {view} = this;
        const text = (isRemoved ? view.recorded.line(recorded - 1) : view.lines.line(repaired - 1));
        const pieces = view.painter.pieces(text);
        if (!(isRemoved || isAdded) || !recorded || !repaired) {
            return pieces;
        }
        const other = isRemoved ? view.lines.line(repaired - 1) : view.recorded.line(recorded - 1);
        return withMarks(pieces, changedParts(text, other)[0]);
    }

    stepOfRow(row) {
        const {view} = this;
        const {kind, recorded, repaired} = this.rowAt(row);
        const range = kind === differenceKinds.removed ? view.recordedMap && view.recordedMap.rangeAt(recorded)
            : view.map && view.map.rangeAt(repaired);
        return range ? range.step : -1;
    }

    readChoice(chosen) {
        const {view, data} = this;
        this.ranges = view ? rangesOfStep(data, view.map, chosen.step) : [];
        this.recordedRanges = view && view.recordedMap ? rangesOfStep(data, view.recordedMap, chosen.step) : [];
        this.chosen = new LineRanges(this.ranges);
        this.chosenRecorded = new LineRanges(this.recordedRanges);
    }

    choose(chosen, source) {
        if (!this.view) {
            return;
        }
        this.readChoice(chosen);
        const {first} = this.chosen;
        const row = first ? this.rowOfLine(first) : -1;
        this.list.clear();
        if (source !== 'macro') {
            this.list.setActive(row);
        }
        if (row >= 0 && source !== 'macro') {
            this.list.show(row);
        } else {
            this.list.draw();
        }
        this.showFoot();
    }

    move(row, isEnter, isClick = false) {
        if (!this.view) {
            return;
        }
        const {kind, recorded} = this.rowAt(row);
        if (kind === differenceKinds.folded && (isEnter || isClick)) {
            this.unfold(row, recorded);
            return;
        }
        this.list.setActive(row);
        const step = this.stepOfRow(row);
        if (isEnter) {
            centerOthers('macro');
        }
        state.set({chosen: step < 0 ? nothingChosen : {step: step, object: this.data.objectOfStep(step)}}, 'macro');
    }

    unfold(row, recorded) {
        const {view, list} = this;
        const {offset} = list;
        view.unfolded.add(recorded);
        view.rows = new DifferenceRows(view.hunks, view.recorded.count, view.lines.count, view.unfolded);
        this.countRows();
        list.setActive(row);
        list.scrollTo(offset);
        this.showMarks();
    }

    goToLine(line) {
        if (!this.view) {
            return;
        }
        const row = this.rowOfLine(line);
        this.move(row, false);
        this.list.setActive(this.rowOfLine(line));
        this.list.show(this.rowOfLine(line));
    }

    // Row of the next or previous place to look at: a hunk, a changed line or a fault.
    places() {
        const {view} = this;
        if (!view) {
            return [];
        }
        const rows = view.rows ? view.rows.hunkRows
            : view.hunks.map(hunk => Math.min(hunk.repaired[0], view.lines.count) - 1);
        return [...new Set([...rows, ...this.rowsWithFindings()])].sort((one, other) => one - other);
    }

    goToPlace(direction) {
        const places = this.places();
        if (!places.length) {
            return false;
        }
        const from = this.list.active >= 0 ? this.list.active : this.list.heights.at(this.list.offset) - 1;
        const next = direction > 0 ? places.find(row => row > from) : places.filter(row => row < from).pop();
        const row = next === undefined ? places[direction > 0 ? 0 : places.length - 1] : next;
        this.move(row, false);
        this.list.show(row, true);
        return true;
    }

    showMarks() {
        showMarks(this.overview, this.list, this.places(), row => this.findingsAt(row).length ? 'faults' : 'changed');
    }

    showFoot() {
        const {chosen, form} = state.get();
        const {data} = this;
        this.hints.querySelector('span').textContent = form === 'differences' ? 'next, previous difference'
            : 'next, previous finding';
        empty(this.foot);
        if (!this.view) {
            return;
        }
        if (chosen.step < 0) {
            this.foot.append(countOf(this.view.lines.count, 'line'));
            return;
        }
        const lines = this.ranges.length ? linesInWords(this.ranges)
            : this.recordedRanges.length ? 'recorded ' + linesInWords(this.recordedRanges) : 'no line';
        this.foot.append(textElement('b', {}, stepWords(data, chosen.step)),
            element('span', {}, data.handleText(chosen.step) + ' ← ' + lines));
    }

    point(event) {
        const made = event.target.closest('[data-row]');
        const step = made && this.view ? this.stepOfRow(Number(made.dataset.row)) : -1;
        state.set({hover: step < 0 ? nothingChosen : {step: step, object: this.data.objectOfStep(step)}}, 'macro');
    }

    hover(hover) {
        if (!this.view) {
            return;
        }
        const ranges = new LineRanges(rangesOfStep(this.data, this.view.map, hover.step));
        for (const [row, made] of this.list.rows) {
            const {kind, repaired} = this.rowAt(row);
            made.classList.toggle('isHovered', kind < differenceKinds.folded && kind !== differenceKinds.removed
                && ranges.has(repaired));
        }
    }

    async copy() {
        try {
            await copyText(this.view.lines.text());
            tell('The macro is copied.');
            this.copyButton.textContent = 'Copied';
        } catch (error) {
            this.copyButton.textContent = 'Not copied';
        }
        setTimeout(() => {
            this.copyButton.textContent = 'Copy';
        }, 1500);
    }

    save() {
        const {target, form, lines} = this.view;
        saveBytes(lines.bytes, this.data.formOf(target, form).file || this.data.target(target).file);
    }

    center() {
        if (this.view && this.chosen.first) {
            this.list.show(this.rowOfLine(this.chosen.first), true);
        }
    }
}
