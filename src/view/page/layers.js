// The layers of the picture, each of which can be hidden; what was there before the recording is one of them.

'use strict';

const mostLayers = 500;

// How many objects each layer has that the picture may show, and how many of all were there before.
function countsOfLayers(data) {
    const layers = new Uint32Array(data.index.layers.length);
    let there = 0;
    for (let i = 0; i < data.objects.count; i++) {
        if (data.objects.hasGeometry[i]) {
            if (data.objects.added[i] < 0) {
                there += data.objects.isDrawn[i];
            }
            if (data.objects.layer[i] < layers.length) {
                layers[data.objects.layer[i]]++;
            }
        }
    }
    return {layers: layers, there: there};
}

class LayerList {
    constructor(data) {
        this.data = data;
        this.rows = new Map();
        const counts = countsOfLayers(data);
        this.element = element('details', {class: 'layers'}, element('summary', {}, 'Layers'));
        const list = element('ul', {});
        data.index.layers.slice(0, mostLayers).forEach((layer, number) => {
            if (counts.layers[number] || number === 0) {
                list.append(this.row(number, layer.name, counts.layers[number]));
            }
        });
        if (counts.there) {
            list.append(this.row('there', 'already there', counts.there));
        }
        this.element.append(list);
        this.element.open = matchMedia('(min-width: 760.5px)').matches && list.children.length <= 8;
        state.on(['hidden', 'step'], () => this.show());
        this.show();
    }

    row(key, name, count) {
        const box = element('input', {type: 'checkbox'});
        const swatch = element('span', {class: 'swatch'});
        box.addEventListener('change', () => {
            const hidden = new Set(state.get().hidden);
            hidden[box.checked ? 'delete' : 'add'](key);
            state.set({hidden: hidden}, 'layers');
        });
        const title = textElement('span', {class: 'layerName', title: visibleText(name)}, name);
        const row = element('li', {}, element('label', {}, box, swatch, title,
            element('span', {class: 'layerCount'}, count.toLocaleString('en'))));
        this.rows.set(key, {row: row, box: box, swatch: swatch});
        return row;
    }

    show() {
        const {hidden, step} = state.get();
        const switched = hiddenLayersAt(this.data.index, step, new Set());
        this.rows.forEach(({row, box}, key) => {
            box.checked = !hidden.has(key);
            row.classList.toggle('isOff', switched[key] === 1);
            row.title = switched[key] === 1 ? 'switched off at this step of the recording' : '';
        });
    }

    // In the colors that the picture has.
    color(palette) {
        const paper = partsOfColor(palette.pane);
        this.rows.forEach(({swatch}, key) => {
            swatch.style.background = key === 'there' ? palette.there
                : recordedColor('bylayer', this.data.index.layers[key].color, this.roleColor(key, palette), paper);
        });
    }

    // A layer of dimensions alone is seen in their color.
    roleColor(layer, palette) {
        const roles = this.data.index.styles.filter(style => style.layer === layer).map(style => style.role);
        return roles.length && roles.every(role => role === 'dimension') ? palette.dimension : palette.ink;
    }
}
