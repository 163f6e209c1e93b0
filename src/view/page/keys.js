// Keys that work wherever the focus is, but in fields.

'use strict';

const targetLetters = {cpp: 'c', csharp: 's', javascript: 'j', vbnet: 'v', cppcom: 'm', vba: 'b'};
const letterPatience = 1500; // milliseconds behind a g

function isField(target) {
    return target.closest && Boolean(target.closest('input:not([type=checkbox]):not([type=range]):not([type=radio]),'
        + ' textarea, select, [contenteditable]'));
}

// The next step that the report says something of, behind or before the chosen one.
function goToFinding(data, steps, direction) {
    const found = steps.findings.steps();
    if (!found.length) {
        tell('There are no findings.');
        return;
    }
    const {chosen} = state.get();
    const at = direction > 0 ? lastNotAbove(found, chosen.step) + 1
        : chosen.step < 0 ? -1 : lastNotAbove(found, chosen.step - 1);
    const step = found[(at + found.length) % found.length];
    state.set({chosen: {step: step, object: data.objectOfStep(step)}}, 'keys');
}

class Keys {
    constructor(data, steps, macro, finder) {
        Object.assign(this, {data: data, steps: steps, macro: macro, finder: finder, letterUntil: 0});
        document.addEventListener('keydown', event => this.key(event));
    }

    key(event) {
        if (event.defaultPrevented || event.altKey || event.ctrlKey || event.metaKey || isField(event.target)
            || byId('help').open) {
            return;
        }
        if (event.timeStamp < this.letterUntil) {
            this.letterUntil = 0;
            this.goToTarget(event);
            return;
        }
        const act = this.acts()[event.key];
        if (act) {
            act(event);
            event.preventDefault();
        }
    }

    acts() {
        const next = direction => () => {
            if (state.get().form !== 'differences' || !this.macro.goToPlace(direction)) {
                goToFinding(this.data, this.steps, direction);
            }
        };
        return {
            1: () => focusPane('picture'), 2: () => focusPane('steps'), 3: () => focusPane('macro'),
            '/': () => this.finder.focus(), n: next(1), p: next(-1), '?': showHelp,
            l: () => state.set({chip: state.get().chip === 'lost' ? 'all' : 'lost'}, 'keys'),
            d: () => this.showDifferences(),
            g: event => { this.letterUntil = event.timeStamp + letterPatience; },
            Escape: () => state.set({chosen: nothingChosen}, 'keys')
        };
    }

    showDifferences() {
        const {target, form} = state.get();
        const {forms} = this.data.target(target);
        if (form === 'differences') {
            state.set({form: 'repaired'}, 'keys');
        } else if (forms.recorded && forms.repaired) {
            state.set({form: 'differences'}, 'keys');
        }
    }

    goToTarget(event) {
        const name = Object.keys(targetLetters).find(one => targetLetters[one] === event.key);
        if (name && this.data.target(name)) {
            state.set({target: name, pane: 'macro'}, 'keys');
            event.preventDefault();
        }
    }
}
