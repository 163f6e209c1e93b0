// Opens the page's data and its panes.

'use strict';

function showOpening() {
    const opening = byId('opening');
    const bar = element('progress', {max: 1, value: 0, 'aria-label': 'Opening'});
    empty(opening).append('Opening the recording ', bar);
    const timer = setTimeout(() => { opening.hidden = false; }, 300);
    return {told: share => { bar.value = share; }, end: () => {
        clearTimeout(timer);
        opening.hidden = true;
    }};
}

// The target and form that are shown first: the edited macro where the page was made for it.
function firstView(data) {
    const {targets} = data.index;
    const target = targets.find(one => one.forms.edited) || targets.find(one => one.name === 'javascript')
        || targets[0];
    return target ? {target: target.name, form: formThere(target, target.forms.edited ? 'edited' : 'repaired')}
        : {target: '', form: 'repaired'};
}

function formThere(target, wanted) {
    const {forms} = target;
    const isThere = wanted === 'differences' ? forms.recorded && forms.repaired : forms[wanted];
    return isThere ? wanted : ['repaired', 'recorded', 'edited'].find(form => forms[form]) || 'repaired';
}

// The address tells what is shown, and shows what it tells.
function bindAddress(data) {
    let timer = 0;
    let written = location.hash;
    state.on(['step', 'chosen', 'target', 'form'], () => {
        clearTimeout(timer);
        timer = setTimeout(() => {
            written = '#' + fragmentOf(state.get(), data);
            history.replaceState(null, '', written);
        }, 200);
    });
    window.addEventListener('hashchange', () => {
        if (location.hash !== written) {
            state.set(changesOfFragment(location.hash, data), 'address');
        }
    });
}

function keepFormThere(data) {
    state.on(['target', 'form'], ({target, form}) => {
        const one = data.target(target);
        if (one) {
            state.set({form: formThere(one, form)}, 'start');
        }
    });
}

function showPage(data) {
    const asked = changesOfFragment(location.hash, data);
    const first = Object.assign({step: data.steps.count, space: data.index.firstSpace}, firstView(data), asked);
    first.form = data.target(first.target) ? formThere(data.target(first.target), first.form) : first.form;
    delete first.chosen;
    state.set(first, 'start');
    document.body.classList.add('isOpen');
    keepFormThere(data);
    startPanes();
    startHeader(data);
    const steps = new StepsPane(data, byId('stepsPane'));
    const macro = new MacroPane(data, byId('macroPane'));
    Object.assign(paneActs, {steps: {focus: () => steps.list.scroller.focus(), center: () => steps.center()},
        macro: {focus: () => macro.list.scroller.focus(), center: () => macro.center()}});
    openPicture(data);
    openRunner(data);
    new Keys(data, steps, macro, new Finder(data, macro));
    startHelp(data);
    startPrint(data, steps, macro);
    bindAddress(data);
    state.set(asked.chosen ? {chosen: asked.chosen} : {}, 'address');
}

async function startPage() {
    const opening = showOpening();
    try {
        showPage(await openData(document, opening.told));
    } catch (error) {
        tellTrouble('The page cannot be shown: ' + error.message);
    } finally {
        opening.end();
    }
}

if (typeof document !== 'undefined') {
    startPage();
}
