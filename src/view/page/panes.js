// The three panes: their widths, the tabs that they are on a phone, and where keys and choices lead to.

'use strict';

const paneNames = {picture: 'Drawing', steps: 'Steps', macro: 'Macro'};
const paneIds = {picture: 'picture', steps: 'stepsPane', macro: 'macroPane'};
const phoneWidth = '(max-width: 760px)';
const narrowestPane = 240; // pixels
const gapKeyStep = 20;

// What each pane does when another asks: `focus` and `center`, by its name.
const paneActs = {};

// Enter on a row brings what is chosen to the middle of the other panes.
function centerOthers(source) {
    for (const name of Object.keys(paneActs)) {
        if (name !== source && paneActs[name].center) {
            paneActs[name].center();
        }
    }
}

function focusPane(name) {
    state.set({pane: name}, 'keys');
    if (paneActs[name] && paneActs[name].focus) {
        paneActs[name].focus();
    }
}

function bindPhoneTabs() {
    const list = byId('paneTabs');
    const tabs = Object.keys(paneNames).map(name => ({name: name,
        made: element('button', {type: 'button', 'aria-controls': paneIds[name]}, paneNames[name])}));
    list.append(...tabs.map(tab => tab.made));
    list.hidden = false;
    bindTabs(list, tabs, name => state.set({pane: name}, 'tabs'));
    const show = ({pane}) => {
        selectTab(tabs, pane);
        for (const name of Object.keys(paneIds)) {
            byId(paneIds[name]).classList.toggle('isOpen', name === pane);
        }
    };
    state.on(['pane'], show);
    show(state.get());
}

// Widths are shares of the window, so that they stay as they are when it changes; below 1100 px the first gap is
// between rows.
class Gap {
    constructor(gap, before, after, properties) {
        Object.assign(this, {gap: gap, before: before, after: after, properties: properties});
        gap.addEventListener('pointerdown', event => this.drag(event));
        gap.addEventListener('keydown', event => this.key(event));
        gap.addEventListener('dblclick', () => this.reset());
        this.tell();
        new ResizeObserver(() => this.tell()).observe(before);
    }

    get isRow() {
        return getComputedStyle(this.gap).cursor === 'row-resize';
    }

    sizes() {
        const key = this.isRow ? 'height' : 'width';
        return [this.before, this.after].map(pane => pane.getBoundingClientRect()[key]);
    }

    tell() {
        const [before, after] = this.sizes();
        putAttributes(this.gap, {'aria-orientation': this.isRow ? 'horizontal' : 'vertical', 'aria-valuemin': 0,
            'aria-valuemax': 100, 'aria-valuenow': Math.round(100 * before / Math.max(1, before + after))});
    }

    // All of the row's panes get their present sizes as shares, the two beside the gap changed ones.
    move(change) {
        const panes = byId('panes');
        const [before, after] = this.sizes();
        const by = Math.max(Math.min(narrowestPane, before) - before,
            Math.min(change, after - Math.min(narrowestPane, after)));
        if (this.isRow) {
            panes.style.gridTemplateRows = 'minmax(120px, ' + (before + by) + 'fr) var(--gap) minmax(120px, '
                + (after - by) + 'fr)';
        } else {
            const widths = Object.values(paneIds).map(id => byId(id).getBoundingClientRect().width);
            Object.keys(paneIds).forEach((name, i) => panes.style.setProperty('--' + name, widths[i] + 'fr'));
            panes.style.setProperty(this.properties[0], before + by + 'fr');
            panes.style.setProperty(this.properties[1], after - by + 'fr');
        }
        this.tell();
    }

    drag(event) {
        let at = this.isRow ? event.clientY : event.clientX;
        this.gap.setPointerCapture(event.pointerId);
        const move = moved => {
            const now = this.isRow ? moved.clientY : moved.clientX;
            this.move(now - at);
            at = now;
        };
        const end = () => {
            this.gap.removeEventListener('pointermove', move);
            this.gap.removeEventListener('pointerup', end);
            this.gap.removeEventListener('pointercancel', end);
        };
        this.gap.addEventListener('pointermove', move);
        this.gap.addEventListener('pointerup', end);
        this.gap.addEventListener('pointercancel', end);
        event.preventDefault();
    }

    key(event) {
        const step = {ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1}[event.key];
        if (step) {
            this.move(step * gapKeyStep);
            event.preventDefault();
        } else if (event.key === 'Home') {
            this.reset();
            event.preventDefault();
        }
    }

    reset() {
        byId('panes').removeAttribute('style');
        this.tell();
    }
}

function startPanes() {
    bindPhoneTabs();
    const [picture, steps, macro] = Object.values(paneIds).map(byId);
    new Gap(byId('pictureGap'), picture, steps, ['--picture', '--steps']);
    new Gap(byId('macroGap'), steps, macro, ['--steps', '--macro']);
    // Rows of the narrow page and columns of the wide one are other sizes.
    matchMedia('(max-width: 1099.5px)').addEventListener('change', () => byId('panes').removeAttribute('style'));
}
