// What is chosen, shown and filtered: the one place that the panes hear of each other from, and its form in the
// address.

'use strict';

const nothingChosen = Object.freeze({step: -1, object: -1});

function sameValue(one, other) {
    if (one === other) {
        return true;
    }
    const isPair = value => value !== null && typeof value === 'object' && 'step' in value && 'object' in value;
    return isPair(one) && isPair(other) && one.step === other.step && one.object === other.object;
}

// `step` of the slider is the number of steps that are done. `hidden` holds numbers of layers, and 'there' for what was
// there before the recording; a changed set is another set.
class State {
    constructor() {
        this.values = {step: 0, chosen: nothingChosen, hover: nothingChosen, space: 0, target: '', form: 'repaired',
            mode: 'recorded', pane: 'picture', filter: '', chip: 'all', hidden: new Set(), run: null};
        this.listeners = [];
        this.waiting = [];
        this.isTelling = false;
    }

    get() {
        return this.values;
    }

    // `source` is the pane that asks, which does not have to scroll itself. Listeners that set something again are told
    // after all have heard of this.
    set(changes, source = '') {
        const changed = Object.keys(changes).filter(key => !sameValue(this.values[key], changes[key]));
        if (!changed.length) {
            return;
        }
        this.values = Object.assign({}, this.values, changes);
        this.waiting.push({changed: changed, source: source});
        if (this.isTelling) {
            return;
        }
        this.isTelling = true;
        try {
            while (this.waiting.length) {
                const news = this.waiting.shift();
                for (const {keys, listener} of this.listeners) {
                    if (news.changed.some(key => keys.includes(key))) {
                        listener(this.values, news.source, news.changed);
                    }
                }
            }
        } finally {
            this.waiting = [];
            this.isTelling = false;
        }
    }

    // `listener` gets the values, the source and the keys that have changed.
    on(keys, listener) {
        this.listeners.push({keys: [].concat(keys), listener: listener});
    }
}

const state = new State();

const shortTargets = {csharp: 'cs', javascript: 'js', vbnet: 'vb', cppcom: 'com'};
const shortForms = {differences: 'diff'};

function longName(short, names) {
    return Object.keys(names).find(name => names[name] === short) || short;
}

// The choice in an address: a handle, or a step where the handle does not lead to it.
function choiceText(chosen, data) {
    if (chosen.object >= 0 && (chosen.step < 0 || data.stepOfObject(chosen.object) === chosen.step)) {
        return data.objects.handle(chosen.object);
    }
    return chosen.step >= 0 ? 's' + chosen.step : '';
}

function choiceOf(text, data) {
    if (/^s\d{1,9}$/.test(text)) {
        const step = Number(text.slice(1));
        return step < data.steps.count ? {step: step, object: data.objectOfStep(step)} : null;
    }
    const object = data.objectByHandle(text);
    return object < 0 ? null : {step: data.stepOfObject(object), object: object};
}

function fragmentOf(values, data) {
    const parts = [];
    if (values.step !== data.steps.count) {
        parts.push('step=' + values.step);
    }
    const choice = choiceText(values.chosen, data);
    if (choice) {
        parts.push('sel=' + choice);
    }
    if (values.target) {
        parts.push('target=' + (shortTargets[values.target] || values.target));
    }
    if (values.form !== 'repaired') {
        parts.push('form=' + (shortForms[values.form] || values.form));
    }
    return parts.join('&');
}

// What an address asks for, as changes of the state; what it does not say rightly is left out.
function changesOfFragment(fragment, data) {
    const changes = {};
    for (const part of fragment.replace(/^#/, '').split('&')) {
        const [, key, value] = /^(\w+)=([\w-]+)$/.exec(part) || [];
        if (key === 'step' && /^\d{1,9}$/.test(value) && Number(value) <= data.steps.count) {
            changes.step = Number(value);
        } else if (key === 'sel') {
            const choice = choiceOf(value, data);
            Object.assign(changes, choice && {chosen: choice});
        } else if (key === 'target' && data.target(longName(value, shortTargets))) {
            changes.target = longName(value, shortTargets);
        } else if (key === 'form' && ['repaired', 'recorded', 'differences', 'edited'].includes(
            longName(value, shortForms))) {
            changes.form = longName(value, shortForms);
        }
    }
    return changes;
}
