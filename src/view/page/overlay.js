// What became of the recorded objects in a run of the macro: strokes over the picture, and a list of what was found.

'use strict';

const mostFindings = 200;
const longestValue = 60; // characters
const findingOrder = ['different', 'missing', 'surplus', 'missingAsTold', 'notChecked'];

// What the macro draws of its own, which no primitive of the recording shows.
function sceneOfDrawn(drawn, spaceCount) {
    const first = new Uint32Array(drawn.length + 1);
    const texts = drawn.map(one => one.text || '');
    drawn.forEach((one, i) => { first[i + 1] = first[i] + one.numbers.length; });
    const numbers = new Float64Array(first[drawn.length]);
    drawn.forEach((one, i) => {
        numbers.set(one.numbers, first[i]);
        if (one.shape === Shapes.text) {
            numbers[first[i + 1] - 1] = i;
        }
    });
    const column = (type, of) => type.from(drawn, of);
    const all = value => () => value;
    const geometry = {count: drawn.length, first: first, numbers: numbers, shape: column(Uint8Array, one => one.shape),
        object: column(Int32Array, (one, i) => i), style: column(Uint16Array, all(0)),
        space: column(Uint16Array, one => one.space), from: column(Int32Array, all(-1)),
        until: column(Int32Array, all(-1))};
    const objects = {count: drawn.length, added: column(Int32Array, all(0))};
    return new Scene(geometry, objects, spaceCount, number => texts[number]);
}

// The kinds of all objects for a painter, which a run without an end does not have.
function comparedKinds(run) {
    return run && run.kinds && (run.state === 'done' || run.state === 'stopped') ? run.kinds : null;
}

function comparisonTitle(run) {
    const form = run.form === 'recorded' ? 'recorded' : run.form === 'edited' ? 'edited' : 'repaired';
    switch (run.state) {
    case 'running':
        return 'The ' + form + ' macro runs';
    case 'stopped':
        return 'The ' + form + ' macro stops' + (run.stopped.line ? ' at line ' + run.stopped.line : '');
    case 'done':
        return 'The ' + form + ' macro draws ' + run.objects.drawn.toLocaleString('en') + ' of ' +
            countOf(run.objects.of, 'object');
    default:
        return 'The ' + form + ' macro was not compared';
    }
}

// A short stroke as it is in the picture.
function legendStroke(name) {
    return icon('M1 9H27', {viewBox: '0 0 28 18', class: 'legendStroke ' + name});
}

class ComparisonPanel {
    constructor(data, into) {
        this.data = data;
        this.into = into;
        state.on(['mode', 'run'], () => this.fill());
        this.fill();
    }

    fill() {
        const {mode, run} = state.get();
        this.into.hidden = mode !== 'compared';
        if (this.into.hidden) {
            return;
        }
        empty(this.into);
        if (!run) {
            this.into.append(element('p', {class: 'comparisonNone'},
                'The macro has not run yet. Run it to see its drawing over the recorded one.'));
            return;
        }
        this.into.append(element('h3', {}, comparisonTitle(run)));
        if (comparedKinds(run)) {
            this.into.append(this.legend(run.counts), this.findings(run));
        }
        if (run.stopped || run.message) {
            this.into.prepend(textElement('p', {class: 'comparisonStop'}, run.stopped ? run.stopped.message
                : run.message));
            this.into.prepend(this.into.querySelector('h3'));
        }
    }

    legend(counts) {
        const shown = [['equal', 'equal'], ['different', 'different'], ['missing', 'missing'],
            ['missingAsTold', 'lost, as told'], ['surplus', 'surplus'], ['notChecked', 'made by the application']];
        const always = ['equal', counts.missingAsTold ? '' : 'missing', 'surplus'];
        return element('ul', {class: 'legend'}, ...shown.filter(([kind]) => counts[kind] || always.includes(kind)).map(
            ([kind, words]) => element('li', {}, legendStroke(kind),
                (counts[kind] || 0).toLocaleString('en') + ' ' + words)));
    }

    findings(run) {
        const list = element('ul', {class: 'findings'});
        const sorted = findingOrder.map(kind => run.findings.filter(finding => finding.kind === kind));
        [].concat(...sorted).slice(0, mostFindings).forEach(
            finding => list.append(element('li', {}, this.finding(finding))));
        if (run.findings.length > mostFindings) {
            list.append(element('li', {class: 'muted'},
                'and ' + (run.findings.length - mostFindings).toLocaleString('en') + ' more'));
        }
        return list;
    }

    finding(finding) {
        const {data} = this;
        const made = button('', {class: 'finding'}, () => this.choose(finding));
        const name = nameOfFinding(data, finding);
        made.append(name.icon, textElement('span', {class: 'findingName'}, name.text),
            textElement('span', {class: 'findingReason'}, reasonOf(finding, name.subject)));
        return made;
    }

    choose(finding) {
        const step = finding.step >= 0 ? finding.step : this.data.stepOfObject(finding.object);
        if (step >= 0 || finding.object >= 0) {
            state.set({chosen: {step: step, object: finding.object}}, 'comparison');
        }
    }
}

// Whom a finding is about, and how the report calls it.
function nameOfFinding(data, finding) {
    const {object, step, handle} = finding;
    if (object >= 0) {
        const name = data.className(data.objects.cls[object]);
        return {icon: classIcon(name), text: objectTitle(data, object),
            subject: name + ' ' + data.objects.handle(object)};
    }
    if (finding.class) {
        const known = data.index.classes.find(one => one.name === finding.class);
        const words = known ? known.words : finding.class;
        return {icon: classIcon(finding.class), text: words + (handle ? ' ' + handle : ''), subject: ''};
    }
    const command = data.commandOf(step);
    return step >= 0 ? {icon: stepIcon(data, command), text: data.stepName(command) || 'Step', subject: ''}
        : {icon: namedIcon('other'), text: 'Macro', subject: ''};
}

function shortValue(text) {
    return text === '' ? 'nothing' : text.length > longestValue ? text.slice(0, longestValue) + '\u2026' : text;
}

function reasonOf({kind, what, recorded, drawn, reason}, subject) {
    const about = what === subject ? '' : what.replace(' of ' + subject, '');
    switch (kind) {
    case 'missingAsTold':
        return (about ? about + ' is missing' : 'missing') + ', as the report says: ' + reason;
    case 'notChecked':
        return about + (about ? ': ' : '') + reason;
    case 'different':
        return recorded || drawn ? 'different ' + about + ': recorded ' + shortValue(recorded) + ', drawn ' +
            shortValue(drawn) : 'different ' + about + ': ' + reason;
    default:
        return kind + (about ? ' ' + about : '') + (reason ? ': ' + reason : '');
    }
}
