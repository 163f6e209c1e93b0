// The header: what was recorded, and whether the macros do it, before anything is clicked.

'use strict';

function countsInWords(index) {
    const {counts, lines} = index;
    const there = counts.notDrawn ? [counts.notDrawn.toLocaleString('en') + ' not drawn'] : [];
    return [countOf(lines, 'line'), countOf(counts.commands, 'command'), countOf(counts.objects, 'object'), ...there]
        .join(', ');
}

// Numbers of the notes of a kind that a target's form has.
function notesOfKind(data, target, form, kind) {
    const one = data.formOf(target, form);
    return (one && one.notes || []).filter(number => data.notes[number].kind === kind);
}

function isSameList(one, other) {
    return one.length === other.length && one.every((value, i) => value === other[i]);
}

function lossBadge(data, target, form) {
    const here = notesOfKind(data, target, form, 'loss');
    const works = data.index.targets.map(one => one.name).filter(name => {
        const one = data.formOf(name, form);
        return one && one.status === 0;
    });
    const isSame = works.every(name => isSameList(notesOfKind(data, name, form, 'loss'), here));
    if (!here.length) {
        return {kind: 'good', text: isSame || works.length < 2 ? '✓ no losses' : '✓ no losses here', chip: 'all'};
    }
    return {kind: 'lost', chip: 'lost', text: countOf(here.length, 'loss', 'losses')
        + (works.length < 2 ? '' : isSame ? ', the same in every target' : ' here')};
}

function assumptionBadge(data, target, form) {
    const count = notesOfKind(data, target, form, 'assumption').length;
    return count ? {kind: 'lost', text: count.toLocaleString('en') + ' assumed', chip: 'assumed'} : null;
}

function faultBadge(data, target, form) {
    const faults = data.faults(target, data.faultyForm(target, form));
    const isRepaired = Boolean(data.formOf(target, 'repaired'));
    const count = countFaults(faults);
    const mended = isRepaired ? countFaults(faults.filter(fault => fault.mended)) : 0;
    if (!count) {
        return {kind: 'good', text: '✓ no faults here', chip: 'all'};
    }
    const all = mended === count;
    const words = !isRepaired ? '' : all ? count === 1 ? ', repaired' : ', all repaired'
        : mended ? ', ' + mended.toLocaleString('en') + ' repaired' : ', not repaired';
    return {kind: 'fault', text: countOf(count, 'fault') + ' here' + words, chip: 'faults'};
}

function badgesOf(data, target, form) {
    if (form === 'edited') {
        return [{kind: 'plain', text: 'edited: not looked through', chip: 'all'}];
    }
    const one = data.formOf(target, form);
    if (!one || one.status !== 0) {
        return [{kind: 'fault', text: 'conversion failed', chip: 'all'}];
    }
    return [lossBadge(data, target, form), assumptionBadge(data, target, form), faultBadge(data, target, form)]
        .filter(badge => badge);
}

function showBadges(data) {
    const {target, form, run} = state.get();
    const badges = empty(byId('badges'));
    if (run) {
        const {text, tone} = runWords(run);
        const isShown = run.target === target && run.form === (form === 'differences' ? 'repaired' : form);
        const whose = isShown ? '' : 'JavaScript, ' + {repaired: 'repaired', recorded: 'as recorded',
            edited: 'edited'}[run.form] + ': ';
        const kind = {good: 'good', fault: 'fault'}[tone] || 'plain';
        badges.append(button((kind === 'good' ? '✓ ' : '') + whose + text, {class: 'badge ' + kind},
            () => state.set({mode: 'compared', pane: 'picture'}, 'header')));
    }
    for (const badge of badgesOf(data, target, form)) {
        badges.append(button(badge.text, {class: 'badge ' + badge.kind},
            () => state.set({chip: badge.chip, pane: 'steps'}, 'header')));
    }
}

// For those who hear the page.
function tell(text) {
    byId('told').textContent = text;
}

function startHeader(data) {
    putText(empty(byId('name')), data.index.name);
    byId('name').title = visibleText(data.index.input);
    byId('counts').textContent = countsInWords(data.index);
    byId('counts').title = countsInWords(data.index); // there may be no room for all of it
    state.on(['target', 'form', 'run'], () => showBadges(data));
    state.on(['run'], ({run}) => {
        if (run && run.state !== 'running') {
            tell(runWords(run).text);
        }
    });
    showBadges(data);
}
