// The slider: how many of the recording's steps are done in the picture.

'use strict';

const playTime = 100; // milliseconds a step
const drawnTicks = 400; // of more commands, each tick stands for several

// Where each command ends on the slider, and what is worst in it: 0 nothing, 1 assumed, 2 faulty, 3 lost.
function ticksOf(data, notes, faulty) {
    const ticks = [];
    const tickAt = new Int32Array(data.steps.count);
    for (let step = 0; step < data.steps.count; step++) {
        if (data.steps.parent[step] < 0) {
            ticks.push({end: 0, mark: 0});
        }
        tickAt[step] = ticks.length - 1;
        ticks[ticks.length - 1].end = step + 1;
    }
    const put = (step, mark) => {
        if (step >= 0 && step < tickAt.length) {
            const tick = ticks[tickAt[step]];
            tick.mark = Math.max(tick.mark, mark);
        }
    };
    notes.forEach(note => put(note.step, note.kind === 'loss' ? 3 : 1));
    faulty.forEach(step => put(step, 2));
    return ticks;
}

// What stands in the slider's place for those who don't see it.
function wordsOfStep(data, step) {
    if (step === 0) {
        return 'before the first step';
    }
    const name = data.stepName(data.commandOf(step - 1));
    return 'behind step ' + step.toLocaleString('en') + (name ? ', ' + name : '');
}

class Slider {
    constructor(data) {
        this.data = data;
        this.timer = 0;
        const {count} = data.steps;
        this.range = element('input',
            {type: 'range', min: 0, max: count, step: 1, 'aria-label': 'Steps that are done'});
        this.canvas = element('canvas', {class: 'ticks', 'aria-hidden': 'true'});
        this.play = button('', {class: 'play', 'aria-label': 'Play', title: 'Play ( Space )'}, () => this.toggle());
        this.words = element('span', {class: 'sliderWords'});
        this.element = element('div', {class: 'slider'}, this.play,
            element('div', {class: 'track'}, this.canvas, this.range), this.words);
        this.play.hidden = matchMedia('(prefers-reduced-motion: reduce)').matches;
        this.range.addEventListener('input', () => {
            this.stop();
            state.set({step: Number(this.range.value)}, 'slider');
        });
        state.on(['step'], () => this.show());
        state.on(['target', 'form'], () => this.readTicks());
        new ResizeObserver(() => this.drawTicks()).observe(this.canvas);
        this.element.hidden = !count;
        this.showPlay(false);
        this.readTicks();
        this.show();
    }

    show() {
        const {step} = state.get();
        const words = wordsOfStep(this.data, step);
        this.range.value = step;
        this.range.setAttribute('aria-valuetext', words);
        this.words.textContent = step ? 'behind step ' + step.toLocaleString('en') + ' of ' +
            this.data.steps.count.toLocaleString('en') : words;
        this.words.title = words;
    }

    async readTicks() {
        const {target, form} = state.get();
        const faultyForm = this.data.faultyForm(target, form);
        const map = await this.data.map(target, faultyForm);
        if (target !== state.get().target || form !== state.get().form) {
            return;
        }
        const faulty = [];
        for (const fault of map ? this.data.faults(target, faultyForm) : []) {
            for (const line of fault.lines) {
                const range = map.rangeAt(line);
                if (range) {
                    faulty.push(range.step);
                }
            }
        }
        this.ticks = ticksOf(this.data, this.data.notesOf(target, form), faulty);
        this.drawTicks();
    }

    drawTicks() {
        const {canvas, ticks, data} = this;
        const density = window.devicePixelRatio || 1;
        canvas.width = Math.max(1, Math.round(canvas.clientWidth * density));
        canvas.height = Math.max(1, Math.round(canvas.clientHeight * density));
        const context = canvas.getContext('2d');
        const palette = readPalette(canvas, context);
        const style = getComputedStyle(canvas);
        const colors = [palette.there, style.getPropertyValue('--lost'), style.getPropertyValue('--fault'),
            style.getPropertyValue('--lost')];
        const every = ticks ? Math.ceil(ticks.length / drawnTicks) : 1;
        const room = ticks ? canvas.width * every / ticks.length : 0;
        for (let i = 0; ticks && i < ticks.length; i += every) {
            const mark = Math.max(...ticks.slice(i, i + every).map(tick => tick.mark));
            const x = ticks[Math.min(i + every, ticks.length) - 1].end / data.steps.count * canvas.width;
            const wide = mark ? 5 * density : Math.max(1, Math.min(3 * density, room * 0.6));
            const high = canvas.height * (mark > 1 ? 1 : mark ? 0.75 : 0.45);
            context.fillStyle = colors[mark];
            const left = Math.min(Math.max(0, x - wide / 2), canvas.width - wide);
            context.fillRect(left, canvas.height - high, wide, high);
        }
    }

    toggle() {
        if (this.timer) {
            this.stop();
            return;
        }
        if (this.play.hidden || this.element.hidden) {
            return;
        }
        if (state.get().step >= this.data.steps.count) {
            state.set({step: 0}, 'slider');
        }
        this.timer = setInterval(() => this.advance(), playTime);
        this.showPlay(true);
    }

    advance() {
        const step = state.get().step + 1;
        state.set({step: Math.min(step, this.data.steps.count)}, 'slider');
        if (step >= this.data.steps.count) {
            this.stop();
        }
    }

    stop() {
        clearInterval(this.timer);
        this.timer = 0;
        this.showPlay(false);
    }

    showPlay(isPlaying) {
        empty(this.play).append(icon(isPlaying ? 'M5 4v10M13 4v10' : 'M5 3v12l10-6Z', {class: 'icon solid'}));
        this.play.setAttribute('aria-label', isPlaying ? 'Pause' : 'Play');
    }
}
