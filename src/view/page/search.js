// Search over objects, steps and lines of the open macro. Texts stay bytes.

'use strict';

const mostFound = 500; // of each kind are listed, all are counted

// Bytes that letters of ASCII are compared as.
const foldedBytes = Uint8Array.from({length: 256}, (_, byte) => byte >= 65 && byte <= 90 ? byte + 32 : byte);

// Where a word is within bytes, upper and lower case of ASCII being the same (Horspool's search).
class ByteSearch {
    constructor(word) {
        this.word = new TextEncoder().encode(word).map(byte => foldedBytes[byte]);
        const {length} = this.word;
        this.skips = new Uint32Array(256).fill(length);
        for (let i = 0; i < length - 1; ++i) {
            for (let byte = 0; byte < 256; ++byte) {
                if (foldedBytes[byte] === this.word[i]) {
                    this.skips[byte] = length - 1 - i;
                }
            }
        }
    }

    next(bytes, from) {
        const {word, skips} = this;
        const last = word.length - 1;
        for (let at = from + last; at < bytes.length; at += skips[bytes[at]]) {
            let i = 0;
            while (i <= last && foldedBytes[bytes[at - i]] === word[last - i]) {
                ++i;
            }
            if (i > last) {
                return at - last;
            }
        }
        return -1;
    }
}

// Numbers of the lines (from 0) that hold a word, and how many there are.
function linesWith(lines, word, most = mostFound) {
    const found = [];
    let count = 0;
    if (!word) {
        return {found: found, count: count};
    }
    const search = new ByteSearch(word);
    for (let at = search.next(lines.bytes, 0); at >= 0;) {
        const line = lines.lineAt(at);
        if (found.length < most) {
            found.push(line);
        }
        ++count;
        at = search.next(lines.bytes, lines.starts[line + 1]);
    }
    return {found: found, count: count};
}

function matching(texts, word) {
    return Uint8Array.from(texts, text => text.toLowerCase().includes(word) ? 1 : 0);
}

const textShape = 4;
const placeOfTextNumber = 6;

// Objects that a text of the drawing belongs to which holds the word.
function objectsWithText(data, word) {
    const objects = new Uint8Array(data.objects.count);
    const hits = matching(data.texts, word);
    if (hits.includes(1)) {
        const {shape, object, first, numbers, count} = data.geometry;
        for (let i = 0; i < count; ++i) {
            if (shape[i] === textShape && hits[numbers[first[i] + placeOfTextNumber]]) {
                objects[object[i]] = 1;
            }
        }
    }
    return objects;
}

// What a step is found by: its command's or variable's name, its class, layer, handle, kind, and the texts of its
// object.
class StepMatcher {
    constructor(data, word) {
        const {index} = data;
        this.data = data;
        this.names = matching(index.names, word);
        this.classes = matching(index.classes.map(one => one.words + '\n' + one.name), word);
        this.layers = matching(index.layers.map(layer => layer.name), word);
        this.kinds = matching(stepKinds, word);
        this.hasText = objectsWithText(data, word);
        this.anyText = this.hasText.includes(1);
        const isHandle = /^[0-9a-f]{1,16}$/.test(word);
        this.handle = isHandle ? keyOfHandleText(word) : null;
    }

    matches(step) {
        const {steps, stepHandles} = this.data;
        if (this.names[steps.name[step]] || this.classes[steps.cls[step]] || this.layers[steps.layer[step]]
            || this.kinds[steps.kind[step]]) {
            return true;
        }
        for (let at = steps.handleFirst[step]; at < steps.handleFirst[step + 1]; ++at) {
            const key = handleKey(stepHandles.high[at], stepHandles.low[at] >>> 0);
            if (key === this.handle || this.anyText && this.hasText[this.data.objectAt(key)]) {
                return true;
            }
        }
        return false;
    }

    matchesObject(object) {
        const {objects} = this.data;
        return Boolean(this.classes[objects.cls[object]] || this.layers[objects.layer[object]] || this.hasText[object]
            || this.handle !== null && handleKey(objects.high[object], objects.low[object] >>> 0) === this.handle);
    }
}

function wordsIn(text) {
    return text.toLowerCase().split(/\s+/).filter(word => word);
}

// Which steps hold all words, each by itself, by what holds it or, for a command, by what it holds. One that matches
// shows all that it holds.
function stepsWith(data, text) {
    const {count, parent} = data.steps;
    const shown = new Uint8Array(count).fill(1);
    for (const word of wordsIn(text)) {
        const matcher = new StepMatcher(data, word);
        const hits = new Uint8Array(count);
        for (let step = 0; step < count; ++step) {
            hits[step] = parent[step] >= 0 && hits[parent[step]] || matcher.matches(step) ? 1 : 0;
        }
        for (let step = count - 1; step >= 0; --step) {
            if (hits[step] && parent[step] >= 0) {
                hits[parent[step]] |= 2; // shown for what it holds, which does not show its other steps
            }
        }
        for (let step = 0; step < count; ++step) {
            shown[step] &= hits[step] ? 1 : 0;
        }
    }
    return shown;
}

// What a text is found in: {objects, steps, lines}, each {found, count}.
function searchAll(data, lines, text) {
    const words = wordsIn(text);
    const result = {objects: {found: [], count: 0}, steps: {found: [], count: 0}, lines: {found: [], count: 0}};
    if (!words.length) {
        return result;
    }
    const matchers = words.map(word => new StepMatcher(data, word));
    const add = (list, number) => {
        ++list.count;
        if (list.found.length < mostFound) {
            list.found.push(number);
        }
    };
    for (let object = 0; object < data.objects.count; ++object) {
        if (matchers.every(matcher => matcher.matchesObject(object))) {
            add(result.objects, object);
        }
    }
    for (let step = 0; step < data.steps.count; ++step) {
        // Added objects are among the objects.
        if (data.kindOf(step) !== 'added' && matchers.every(matcher => matcher.matches(step))) {
            add(result.steps, step);
        }
    }
    result.lines = linesWith(lines, text.trim());
    return result;
}

// The header's field and the list below it.
class Finder {
    constructor(data, macro) {
        this.data = data;
        this.macro = macro;
        this.field = byId('search');
        this.found = byId('found');
        this.rows = [];
        this.before = null;
        putAttributes(this.field, {role: 'combobox', 'aria-controls': 'foundList', 'aria-expanded': 'false',
            'aria-autocomplete': 'list'});
        this.summary = element('p', {class: 'foundSummary', role: 'status'});
        const scroller = element('div', {id: 'foundList'});
        this.found.append(this.summary, scroller);
        this.list = new WindowedList(scroller, {label: 'Found', rowHeight: rowHeight, makeRow: row => this.makeRow(row),
            move: (row, isEnter) => this.go(row, isEnter)});
        scroller.tabIndex = -1;
        this.field.addEventListener('input', () => this.searchSoon());
        this.field.addEventListener('keydown', event => this.key(event));
        this.field.addEventListener('focus', () => this.field.value && this.searchSoon());
        document.addEventListener('pointerdown', event => {
            if (!byId('finder').contains(event.target)) {
                this.close();
            }
        });
        byId('finder').addEventListener('focusout', event => {
            if (event.relatedTarget && !byId('finder').contains(event.relatedTarget)) {
                this.close();
            }
        });
    }

    searchSoon() {
        clearTimeout(this.timer);
        this.timer = setTimeout(() => this.search(), this.data.steps.count > 5000 ? 150 : 0);
    }

    search() {
        const text = this.field.value;
        if (!text.trim()) {
            this.close();
            return;
        }
        const lines = this.macro.view ? this.macro.view.lines : new Lines(new Uint8Array(0));
        const {objects, steps, lines: found} = searchAll(this.data, lines, text);
        this.macroLines = lines;
        this.rows = [...objects.found.map(number => ({object: number})), ...steps.found.map(number => ({step: number})),
            ...found.found.map(number => ({line: number}))];
        this.summary.textContent = this.rows.length ? [countOf(objects.count, 'object'), countOf(steps.count, 'step'),
            countOf(found.count, 'line')].join(', ') : 'Nothing found';
        this.found.hidden = false;
        this.field.setAttribute('aria-expanded', 'true');
        this.list.setCount(this.rows.length);
        this.list.scrollTo(0);
    }

    makeRow(row) {
        const {object, step, line} = this.rows[row];
        if (line !== undefined) {
            return element('div', {class: 'foundRow'}, element('span', {class: 'foundWhere'}, 'line ' + (line + 1)),
                textElement('code', {}, this.macroLines.line(line).trim().slice(0, 200)));
        }
        if (object !== undefined) {
            return element('div', {class: 'foundRow'}, classIcon(this.data.className(this.data.objects.cls[object])),
                textElement('span', {class: 'foundWords'}, this.data.classWords(this.data.objects.cls[object])),
                element('span', {class: 'handle'}, this.data.objects.handle(object)));
        }
        return element('div', {class: 'foundRow'}, stepIcon(this.data, step),
            textElement('span', {class: 'foundWords'}, stepWords(this.data, step)),
            element('span', {class: 'foundWhere'}, 'recording ' + this.data.steps.line[step]));
    }

    go(row, isEnter) {
        this.list.setActive(row);
        const {object, step, line} = this.rows[row];
        if (line !== undefined) {
            this.macro.goToLine(line + 1);
        } else {
            state.set({chosen: object === undefined ? {step: step, object: this.data.objectOfStep(step)}
                : {step: this.data.stepOfObject(object), object: object}}, 'search');
        }
        if (isEnter) {
            this.close();
            focusPane(line !== undefined ? 'macro' : 'steps');
        }
    }

    // Where the focus was before comes back with Escape.
    focus() {
        this.before = document.activeElement;
        this.field.focus();
        this.field.select();
    }

    key(event) {
        if (event.key === 'Escape') {
            this.close();
            this.field.value = '';
            this.field.blur();
            if (this.before) {
                this.before.focus();
            }
        } else if (event.key === 'Enter' && this.rows.length && !this.found.hidden) {
            this.go(Math.max(0, this.list.active), true);
        } else if ((event.key === 'ArrowDown' || event.key === 'ArrowUp') && this.rows.length && !this.found.hidden) {
            const step = event.key === 'ArrowDown' ? 1 : -1;
            const row = Math.max(0, Math.min(this.rows.length - 1, this.list.active + step));
            this.go(row, false);
            this.list.reveal(row);
            this.field.setAttribute('aria-activedescendant', 'foundList-' + row);
        } else {
            return;
        }
        event.preventDefault();
    }

    close() {
        clearTimeout(this.timer);
        this.found.hidden = true;
        this.rows = [];
        this.list.setCount(0);
        this.field.setAttribute('aria-expanded', 'false');
        this.field.removeAttribute('aria-activedescendant');
    }
}
