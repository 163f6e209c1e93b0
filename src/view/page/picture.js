// The pane of the picture.

'use strict';

const doubleClick = 350; // milliseconds
const printedSize = [3272, 2244]; // of A4 landscape within margins of 10 mm, at 300 dots an inch
const printedDensity = 300 / 96;

class Picture {
    constructor(data, pane) {
        this.data = data;
        this.pane = pane;
        this.scene = Scene.ofData(data);
        this.painter = new ScenePainter(this.scene);
        this.views = new Map(); // by space, as they were left
        this.fitted = new Set(); // spaces of which all is shown, in whatever size
        this.lastChoice = {time: -Infinity, x: 0, y: 0, objects: [], at: 0};
        this.version = 0;
        this.kinds = null; // of a run
        this.density = window.devicePixelRatio || 1;
        this.makeElements();
        this.keptPicture = new KeptPicture(this.canvas,
            (context, view, width, height, from) => this.painting(context, view, width, height, from),
            view => this.composed(view));
        this.overlay = new Marks(this.marks, data, this.scene, this.painter);
        this.gestures = new Gestures(this.stage, this.canvas, this);
        this.listen();
    }

    makeElements() {
        const {data} = this;
        this.canvas = element('canvas', {class: 'pictureCanvas', role: 'img'});
        this.marks = element('canvas', {class: 'pictureMarks', 'aria-hidden': 'true'});
        this.place = element('p', {class: 'picturePlace', 'aria-hidden': 'true'});
        this.barText = element('span', {});
        this.bar = element('p', {class: 'pictureBar', 'aria-hidden': 'true'}, this.barText);
        this.none = element('p', {class: 'pictureNone', hidden: true});
        this.layers = new LayerList(data);
        const tool = (text, title, act) => button(text, {'aria-label': title, title: title}, act);
        this.stage = element('div', {class: 'stage', tabindex: 0, role: 'group', 'aria-label':
            'Picture: arrows move it, plus and minus zoom, F shows all'}, this.canvas, this.marks,
            element('div', {class: 'tools'}, tool('\u2922', 'Show all ( f )', () => this.fitAll()),
                tool('+', 'Zoom in ( + )', () => this.zoomMiddle(keyZoom)),
                tool('\u2212', 'Zoom out ( \u2212 )', () => this.zoomMiddle(1 / keyZoom))),
            this.layers.element, this.none, this.place, this.bar);
        const panel = element('div', {class: 'comparison', hidden: true});
        this.chosenLine = button('', {class: 'chosenLine', hidden: true}, () => state.set({pane: 'steps'}, 'picture'));
        this.slider = new Slider(data);
        this.pane.append(this.head(), this.stage, panel, this.chosenLine, this.slider.element);
        this.panel = new ComparisonPanel(data, panel);
    }

    head() {
        this.spaces = spaceChooser(this.data, this.scene);
        this.spaces.addEventListener('change', () => state.set({space: Number(this.spaces.value)}, 'picture'));
        const modes = element('div', {class: 'segments', role: 'group', 'aria-label': 'What is shown'});
        this.modes = ['recorded', 'compared'].map(mode => button(mode === 'recorded' ? 'Recorded' : 'Compared',
            {'data-mode': mode}, () => state.set({mode: mode}, 'picture')));
        modes.append(...this.modes);
        modes.hidden = !['recorded', 'repaired', 'edited'].some(form => {
            const one = this.data.formOf('javascript', form);
            return one && one.status === 0;
        });
        return element('div', {class: 'paneHead'}, element('h2', {}, 'Drawing'), this.spaces,
            new NotDrawn(this.data).element, element('span', {class: 'filler'}), modes);
    }

    listen() {
        state.on(['step'], () => this.stepped());
        state.on(['space'], () => this.showSpace());
        state.on(['hidden', 'mode'], () => this.restyle());
        state.on(['run'], () => this.showRun());
        state.on(['chosen'], (values, source) => this.choiceChanged(values.chosen, source));
        state.on(['hover'], () => this.keptPicture.touch());
        for (const query of ['(prefers-color-scheme: dark)', '(forced-colors: active)']) {
            matchMedia(query).addEventListener('change', () => this.readColors());
        }
        new ResizeObserver(() => this.resize()).observe(this.stage);
        window.addEventListener('resize', () => this.resize());
        document.addEventListener('keydown', event => this.key(event));
        paneActs.picture = {focus: () => this.stage.focus(), center: () => this.center()};
        this.shownStep = state.get().step;
        this.space = firstSpaceOf(this.data, this.scene, state.get().step);
        state.set({space: this.space}, 'picture');
        this.readColors();
        this.showMode();
        this.showSpace();
    }

    readColors() {
        this.palette = readPalette(this.stage, this.marks.getContext('2d'));
        this.brushes = brushesOf(this.data.index, this.palette);
        this.keptPicture.ground = this.palette.pane;
        this.layers.color(this.palette);
        this.slider.drawTicks();
        this.restyle();
    }

    resize() {
        const density = window.devicePixelRatio || 1;
        const width = Math.round(this.stage.clientWidth * density);
        const height = Math.round(this.stage.clientHeight * density);
        if (!width || !height || width === this.width && height === this.height) {
            return;
        }
        const [oldWidth, oldHeight] = [this.width || width, this.height || height];
        this.marks.width = this.width = width;
        this.marks.height = this.height = height;
        this.views.forEach((view, space) => this.views.set(space,
            resizedView(view, oldWidth, oldHeight, width, height, density / this.density)));
        this.fitted.forEach(space => this.views.delete(space));
        this.density = density;
        this.keptPicture.resize(width, height);
        this.showSpaceView();
    }

    // The state as a painter needs it.
    look(from, width, height) {
        const {mode, step, hidden} = state.get();
        const kinds = mode === 'compared' ? this.kinds : null;
        const {spaces} = this.data.index;
        const visibility = new Visibility(this.scene, this.data.index, step, hidden);
        return {visibility: visibility, brushes: this.brushes, kinds: kinds, space: this.space, density: this.density,
            width: width, height: height, from: from, version: this.version,
            modelSpace: Math.max(0, spaces.findIndex(space => space.kind === 'model'))};
    }

    *painting(context, view, width, height, from) {
        const look = this.look(from, width, height);
        if (from < 0) {
            paintGround(context, view, width, height, this.palette, this.density);
        }
        yield* this.painter.paint(context, view, look);
        if (look.kinds && from < 0) {
            yield* this.paintDrawn(context, view, look);
        }
    }

    // What a macro has drawn of its own.
    *paintDrawn(context, view, look) {
        const {run} = state.get();
        if (this.drawnOf !== run) {
            this.drawnOf = run;
            this.drawnScene = sceneOfDrawn(run.drawn, this.data.index.spaces.length);
        }
        const scene = this.drawnScene;
        const dotted = this.brushes[brushKinds.comparison + 4];
        const brushes = Object.assign(this.brushes.slice(), {ofStyles: this.brushes.ofStyles});
        brushes[brushKinds.comparison + 2] = dotted; // recorded otherwise, which its own stroke shows
        yield* new ScenePainter(scene).paint(context, view, Object.assign({}, look, {brushes: brushes,
            kinds: Uint8Array.from(run.drawn, one => one.kind), visibility: {shows: () => true}}));
    }

    stepped() {
        const {step} = state.get();
        const before = this.shownStep;
        this.shownStep = step;
        const space = spaceAt(this.data.index, step);
        if (space !== spaceAt(this.data.index, before)) {
            state.set({space: space}, 'picture');
        }
        const {grows, defines} = changeBetween(this.data, this.scene, before, step);
        const isAlone = this.data.index.spaces[this.space].kind !== 'sheet'; // which may show model space
        this.version += defines ? 1 : 0;
        this.tellNothing();
        if (grows && isAlone && !defines) {
            this.keptPicture.extend(before);
        } else {
            this.keptPicture.renew();
        }
    }

    // Of the news of a run only its end changes the picture.
    showRun() {
        const kinds = comparedKinds(state.get().run);
        if (kinds !== this.kinds) {
            this.kinds = kinds;
            this.restyle();
        }
    }

    restyle() {
        this.version++;
        this.showMode();
        this.tellNothing();
        this.keptPicture.renew();
    }

    showMode() {
        this.modes.forEach(one => one.setAttribute('aria-pressed', one.dataset.mode === state.get().mode));
    }

    showSpace() {
        this.space = state.get().space;
        this.spaces.value = this.space;
        this.canvas.setAttribute('aria-label', sentenceOfSpace(this.data, this.scene, this.space));
        this.tellNothing();
        if (this.width) {
            this.showSpaceView();
        }
    }

    showSpaceView() {
        if (this.views.has(this.space)) {
            this.showView(this.view);
        } else {
            this.fitAll();
        }
        this.keptPicture.forget();
    }

    tellNothing() {
        const {step, hidden} = state.get();
        const visibility = new Visibility(this.scene, this.data.index, step, hidden);
        this.none.hidden = this.scene.members.of(this.space).some(p => visibility.shows(p));
        this.none.textContent = this.none.hidden ? '' : whyEmpty(this.data, this.scene, this.space);
    }

    viewOfAll() {
        const box = this.scene.extentsOf(this.space);
        return fittingView(box.isEmpty ? {left: 0, bottom: 0, right: 100, top: 100} : box, this.width, this.height);
    }

    showView(view) {
        this.fitted.delete(this.space);
        this.views.set(this.space, view);
        this.keptPicture.show(view);
    }

    get view() {
        return this.views.get(this.space);
    }

    // A pane that has never been seen has no size yet.
    fitAll() {
        if (this.width) {
            this.showView(this.viewOfAll());
            this.fitted.add(this.space);
        }
    }

    fitChosen() {
        if (!this.width) {
            return;
        }
        const box = this.scene.boxOfObjects(objectsOfChoice(this.data, state.get().chosen), this.space);
        if (!box.isEmpty) {
            const view = fittingView(box, this.width * 0.6, this.height * 0.6);
            this.showView(movedView(view, this.width * 0.2, this.height * 0.2));
        }
    }

    center() {
        const box = this.scene.boxOfObjects(objectsOfChoice(this.data, state.get().chosen), this.space);
        if (this.width && !box.isEmpty) {
            const {scale} = this.view;
            this.showView({x: (box.left + box.right) / 2 - this.width / 2 / scale,
                y: (box.bottom + box.top) / 2 + this.height / 2 / scale, scale: scale});
        }
    }

    // Wherever the focus is, but where the key means something else.
    key(event) {
        if (event.defaultPrevented || event.altKey || event.ctrlKey || event.metaKey || isField(event.target)
            || byId('help').open) {
            return;
        }
        const acts = {f: () => this.fitAll(), F: () => this.fitChosen(), '[': () => this.chooseNext(-1),
            ']': () => this.chooseNext(1)};
        const takesSpace = event.target.closest && event.target.closest(
            'button, summary, input:not([type=range]), [role=tab], [role=separator]');
        const act = event.key === ' ' && !takesSpace ? () => this.slider.toggle() : acts[event.key];
        if (act) {
            act();
            event.preventDefault();
        }
    }

    // What the gestures tell, in pixels of the page.
    move(dx, dy) {
        this.showView(movedView(this.view, dx * this.density, dy * this.density));
    }

    zoom(factor, x, y) {
        this.showView(zoomedView(this.view, factor, x * this.density, y * this.density));
    }

    zoomMiddle(factor) {
        this.zoom(factor, this.stage.clientWidth / 2, this.stage.clientHeight / 2);
    }

    objectsAt(x, y, reach) {
        const {step, hidden} = state.get();
        return new Picker(this.scene, new Visibility(this.scene, this.data.index, step, hidden)).objectsAt(this.space,
            this.view, x * this.density, y * this.density, reach * this.density);
    }

    choose(x, y, reach) {
        const now = performance.now();
        const last = this.lastChoice;
        // The second half of a double click chooses nothing.
        if (now - last.time < doubleClick && Math.hypot(x - last.x, y - last.y) <= reach) {
            return;
        }
        const objects = this.objectsAt(x, y, reach);
        const isAgain = last.objects.length > 1 && objects.length === last.objects.length &&
            objects.every((object, i) => object === last.objects[i]) && state.get().chosen.object === objects[last.at];
        const at = isAgain ? (last.at + 1) % objects.length : 0;
        this.lastChoice = {time: now, x: x, y: y, objects: objects, at: at};
        this.chooseObject(objects.length ? objects[at] : -1, 'picture');
    }

    chooseObject(object, source) {
        state.set({chosen: object < 0 ? nothingChosen : {step: this.data.stepOfObject(object), object: object}},
            source);
    }

    fit() {
        if (state.get().chosen.object >= 0) {
            this.fitChosen();
        } else {
            this.fitAll();
        }
    }

    // The next object of the space in the order of drawing, or the one before.
    chooseNext(direction) {
        const {geometry} = this.scene;
        const {step} = state.get();
        const objects = new Set();
        for (const p of this.scene.members.of(this.space)) {
            if (this.scene.isThere(p, step)) {
                objects.add(geometry.object[p]);
            }
        }
        const all = [...objects];
        if (all.length) {
            const at = all.indexOf(state.get().chosen.object);
            const next = at < 0 ? (direction > 0 ? 0 : all.length - 1) : (at + direction + all.length) % all.length;
            this.chooseObject(all[next], 'pictureKeys');
        }
    }

    point(x, y) {
        const [worldX, worldY] = [this.view.x + x * this.density / this.view.scale,
            this.view.y - y * this.density / this.view.scale];
        const digits = Math.max(0, Math.min(8, Math.ceil(Math.log10(this.view.scale / this.density)) + 1));
        this.place.textContent = 'x ' + worldX.toFixed(digits) + ' y ' + worldY.toFixed(digits);
        const [object] = this.objectsAt(x, y, mouseReach);
        this.canvas.style.cursor = object === undefined ? '' : 'pointer';
        state.set({hover: object === undefined ? nothingChosen
            : {step: this.data.stepOfObject(object), object: object}}, 'picture');
    }

    leave() {
        this.place.textContent = '';
        state.set({hover: nothingChosen}, 'picture');
    }

    choiceChanged(chosen, source) {
        const objects = objectsOfChoice(this.data, chosen);
        this.chosenLine.hidden = !objects.length;
        if (objects.length) {
            const step = chosen.step >= 0 ? ', line ' + this.data.steps.line[chosen.step] : '';
            putText(empty(this.chosenLine), titleOfObjects(this.data, objects) + step);
        }
        if (source !== 'picture' && objects.length) {
            this.bringIntoSight(objects);
        }
        this.keptPicture.touch();
    }

    // Moves the picture only when nothing of what is chosen can be seen.
    bringIntoSight(objects) {
        const {geometry} = this.scene;
        const primitives = this.scene.primitivesOf(objects[0]);
        if (primitives.length && primitives.every(p => geometry.space[p] !== this.space)) {
            const kind = this.data.index.spaces[geometry.space[primitives[0]]].kind;
            if (kind !== 'block') {
                state.set({space: geometry.space[primitives[0]]}, 'picture');
            }
        }
        const box = this.scene.boxOfObjects(objects, this.space);
        if (!this.width || box.isEmpty) {
            return;
        }
        const seen = new Box();
        Mapping.ofView(this.view).addBox(seen, box.left, box.bottom, box.right, box.top);
        if (seen.right < 0 || seen.left > this.width || seen.top < 0 || seen.bottom > this.height) {
            this.center();
        }
    }

    // Over each picture that comes to the canvas.
    composed(view) {
        const {chosen, hover, step} = state.get();
        this.overlay.show(chosen, hover, {view: view, space: this.space, step: step, density: this.density,
            palette: this.palette});
        this.showBar(view);
    }

    // All of the space that is shown, on paper. A canvas is printed as it is, while an image would have to be decoded
    // first, for which printing does not wait.
    print(into) {
        const [width, height] = printedSize;
        const box = this.scene.extentsOf(this.space);
        if (box.isEmpty) {
            return;
        }
        const canvas = element('canvas', {width: width, height: height});
        const shown = {brushes: this.brushes, palette: this.palette, density: this.density};
        Object.assign(this, {brushes: brushesOf(this.data.index, lightPalette), palette: lightPalette,
            density: printedDensity});
        this.version++;
        const steps = this.painting(canvas.getContext('2d', {alpha: false}), fittingView(box, width, height), width,
            height, -1);
        while (!steps.next().done) {
            // There is no time to give way.
        }
        Object.assign(this, shown);
        this.version++;
        this.keptPicture.restart();
        empty(into).append(canvas);
    }

    showBar(view) {
        const length = roundStep(32 * this.density / view.scale);
        this.barText.textContent = String(Number(length.toPrecision(1)));
        this.bar.style.width = (length * view.scale / this.density) + 'px';
    }
}

function openPicture(data) {
    const picture = new Picture(data, byId('picture'));
    window.addEventListener('beforeprint', () => picture.print(byId('printedPicture')));
    window.addEventListener('afterprint', () => empty(byId('printedPicture')));
    return picture;
}
