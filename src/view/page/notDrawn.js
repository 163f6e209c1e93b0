// What the picture does not show, or shows in part, each with its reason.

'use strict';

const mostListed = 300; // objects

function objectTitle(data, object) {
    return data.classWords(data.objects.cls[object]) + ' ' + data.objects.handle(object);
}

class NotDrawn {
    constructor(data) {
        this.data = data;
        this.missing = [];
        this.partly = [];
        const {hasGeometry, isDrawn, remark, count} = data.objects;
        for (let i = 0; i < count; i++) {
            if (hasGeometry[i] && !isDrawn[i]) {
                this.missing.push(i);
            } else if (remark[i]) {
                this.partly.push(i);
            }
        }
        this.makeElement();
    }

    makeElement() {
        const {missing, partly} = this;
        const box = element('details', {class: 'notDrawn', hidden: !missing.length && !partly.length});
        const title = missing.length ? missing.length.toLocaleString('en') + ' not drawn'
            : partly.length.toLocaleString('en') + ' drawn in part';
        box.append(element('summary', {class: missing.length ? 'badge lost' : 'badge plain'}, title));
        box.addEventListener('toggle', () => {
            if (box.open && box.children.length === 1) {
                box.append(this.list());
            }
        });
        box.addEventListener('keydown', event => {
            if (event.key === 'Escape' && box.open) {
                box.open = false;
                box.firstChild.focus();
                event.stopPropagation();
            }
        });
        document.addEventListener('click', event => {
            if (box.open && !box.contains(event.target)) {
                box.open = false;
            }
        });
        this.element = box;
    }

    list() {
        const list = element('div', {class: 'notDrawnList'});
        for (const [title, objects] of [['Not drawn', this.missing], ['Drawn in part', this.partly]]) {
            if (objects.length) {
                const rows = objects.slice(0, mostListed).map(object => element('li', {}, this.row(object)));
                if (objects.length > mostListed) {
                    rows.push(element('li', {class: 'muted'},
                        'and ' + (objects.length - mostListed).toLocaleString('en') + ' more'));
                }
                list.append(element('h3', {}, title), element('ul', {}, ...rows));
            }
        }
        return list;
    }

    row(object) {
        const {data} = this;
        const remark = data.objects.remark[object];
        const made = button('', {class: 'finding'},
            () => state.set({chosen: {step: data.stepOfObject(object), object: object}}, 'notDrawn'));
        made.append(classIcon(data.className(data.objects.cls[object])),
            textElement('span', {class: 'findingName'}, objectTitle(data, object)), textElement('span',
                {class: 'findingReason'}, remark ? data.index.remarks[remark - 1] : 'its geometry is not recorded'));
        return made;
    }
}
