// Lists of which only the rows in sight exist. Heights may differ, and may be known only when a row is there.

'use strict';

const highestList = 10000000; // pixels; browsers do not make elements of any height

// Heights of rows, with their sums (a Fenwick tree), so that one of 200,000 may change.
class Heights {
    // `others` are [row, height] of those that are not as high as the rest.
    constructor(count, height, others = []) {
        this.count = count;
        this.heights = new Float64Array(count).fill(height);
        for (const [row, other] of others) {
            this.heights[row] = other;
        }
        this.sums = new Float64Array(count + 1);
        this.total = 0;
        for (let i = 1; i <= count; ++i) {
            this.total += this.heights[i - 1];
            this.sums[i] += this.heights[i - 1];
            const above = i + (i & -i);
            if (above <= count) {
                this.sums[above] += this.sums[i];
            }
        }
    }

    set(row, height) {
        const change = height - this.heights[row];
        if (change === 0) {
            return;
        }
        this.heights[row] = height;
        this.total += change;
        for (let i = row + 1; i <= this.count; i += i & -i) {
            this.sums[i] += change;
        }
    }

    // Where a row begins; that of the count is the end.
    top(row) {
        let sum = 0;
        for (let i = row; i > 0; i -= i & -i) {
            sum += this.sums[i];
        }
        return sum;
    }

    // The row at an offset, the nearest one outside.
    at(offset) {
        let row = 0;
        let left = offset;
        for (let step = 1 << 30 >>> Math.clz32(this.count || 1) - 1; step > 0; step >>= 1) {
            if (row + step <= this.count && this.sums[row + step] <= left) {
                row += step;
                left -= this.sums[row];
            }
        }
        return Math.max(0, Math.min(row, this.count - 1));
    }
}

// Offsets within a list that is higher than an element may be, and where its bar stands.
class Scale {
    constructor(total, view) {
        this.height = Math.min(total, highestList);
        this.reach = Math.max(0, total - view);
        this.bar = Math.max(0, this.height - view);
    }

    offset(barTop) {
        return this.bar > 0 ? Math.max(0, Math.min(this.reach, barTop * (this.reach / this.bar))) : 0;
    }

    barTop(offset) {
        return this.reach > 0 ? offset * (this.bar / this.reach) : 0;
    }
}

const rowsBeyond = 4; // made above and below of what is in sight

// How a list is asked: `options` are rowHeight (of rows that do not say otherwise), makeRow(row) -> element,
// isMeasured(row) (its height is what its element has), headOf(row) -> the row that stays at the top while it is in
// sight, or -1, and move(row, isEnter, isClick), called when a key or a click goes to a row.
class WindowedList {
    constructor(scroller, options) {
        this.scroller = scroller;
        this.options = options;
        this.rows = new Map();
        this.active = -1;
        this.isWaiting = false;
        // What the scroller would tell, which makes it lay out the page each time that it is asked behind a change.
        this.top = 0;
        this.knownView = 0;
        this.wanted = null; // offset that a hidden list was to be scrolled to
        this.space = element('div', {class: 'listSpace', role: 'presentation'});
        this.stuck = element('div', {class: 'listHead', role: 'presentation', 'aria-hidden': 'true'});
        putAttributes(scroller, {role: 'listbox', tabindex: 0, 'aria-label': options.label});
        scroller.classList.add('list');
        scroller.append(this.space);
        scroller.addEventListener('scroll', () => {
            this.top = scroller.scrollTop;
            this.drawSoon();
        });
        scroller.addEventListener('keydown', event => this.key(event));
        this.space.addEventListener('click', event => this.click(event));
        new ResizeObserver(() => this.resized()).observe(scroller);
        this.setCount(0);
    }

    // Starts anew; `heights` are [row, height] of those that are not as high as the others, which is an estimate where
    // they are measured.
    setCount(count, heights = []) {
        this.heights = new Heights(count, this.options.rowHeight(), heights);
        this.count = count;
        this.active = -1;
        this.clear();
        this.draw();
    }

    clear() {
        this.space.textContent = '';
        this.rows.clear();
        this.stuckRow = -1;
    }

    // Makes the rows in sight anew, all or one.
    refresh(row = -1) {
        if (row < 0) {
            this.clear();
        } else if (this.rows.has(row)) {
            this.rows.get(row).remove();
            this.rows.delete(row);
        }
        this.drawSoon();
    }

    resized() {
        const wasHidden = !this.knownView;
        this.knownView = this.scroller.clientHeight;
        this.top = this.scroller.scrollTop;
        if (this.scroller.clientWidth !== this.width) {
            this.width = this.scroller.clientWidth;
            this.clear(); // texts are broken otherwise
        }
        this.draw();
        if (wasHidden && this.view) {
            const {wanted} = this;
            this.wanted = null;
            if (wanted !== null) {
                this.scrollTo(wanted);
            }
            this.show(this.active);
        }
    }

    drawSoon() {
        if (!this.isWaiting) {
            this.isWaiting = true;
            requestAnimationFrame(() => {
                this.isWaiting = false;
                this.draw();
            });
        }
    }

    get view() {
        this.knownView = this.knownView || this.scroller.clientHeight;
        return this.knownView;
    }

    get scale() {
        return new Scale(this.heights.total, this.view);
    }

    get offset() {
        return this.scale.offset(this.top);
    }

    // The space has to be as high as the list before it is scrolled.
    setTop(offset) {
        this.setSpace();
        this.top = this.scale.barTop(Math.max(0, Math.min(this.scale.reach, offset)));
        this.scroller.scrollTop = this.top;
    }

    setSpace() {
        const height = this.scale.height + 'px';
        if (this.space.style.height !== height) {
            this.space.style.height = height;
        }
    }

    draw() {
        const view = this.view;
        if (!view) {
            return;
        }
        this.setSpace();
        let offset = this.offset;
        // What is measured may move what is below it: the row at the top stays.
        const first = this.heights.at(offset);
        const within = offset - this.heights.top(first);
        for (let isSettled = false, tries = 0; !isSettled && tries < 4; ++tries) {
            isSettled = this.makeRows(offset, view);
            if (!isSettled) {
                const wanted = this.heights.top(first) + within;
                this.setSpace();
                if (Math.abs(wanted - offset) >= 1) {
                    this.setTop(wanted);
                }
                offset = this.offset;
            }
        }
        this.place(offset);
        this.stick(offset);
        this.tellActive();
    }

    // Whether all heights were as expected.
    makeRows(offset, view) {
        const first = Math.max(0, this.heights.at(offset) - rowsBeyond);
        const last = Math.min(this.count - 1, this.heights.at(offset + view) + rowsBeyond);
        for (const [row, made] of this.rows) {
            if (row < first || row > last) {
                made.remove();
                this.rows.delete(row);
            }
        }
        const fresh = [];
        let before = null;
        for (let row = first; row <= last; ++row) {
            let made = this.rows.get(row);
            if (!made) {
                made = this.makeRow(row);
                if (before) {
                    before.after(made);
                } else {
                    this.space.prepend(made);
                }
                fresh.push(row);
            }
            before = made;
        }
        const measured = fresh.filter(row => this.options.isMeasured && this.options.isMeasured(row))
            .map(row => [row, this.rows.get(row).getBoundingClientRect().height]);
        const changed = measured.filter(([row, height]) => Math.abs(this.heights.heights[row] - height) > 0.5);
        for (const [row, height] of changed) {
            this.heights.set(row, height);
        }
        return changed.length === 0;
    }

    makeRow(row) {
        const made = this.options.makeRow(row);
        const isMeasured = this.options.isMeasured && this.options.isMeasured(row);
        putAttributes(made, {role: 'option', id: this.scroller.id + '-' + row, 'aria-posinset': row + 1,
            'aria-setsize': this.count, 'aria-selected': String(row === this.active)});
        made.classList.add('listRow');
        made.classList.toggle('isActive', row === this.active);
        made.dataset.row = row;
        if (!isMeasured) {
            made.style.height = this.heights.heights[row] + 'px';
        }
        this.rows.set(row, made);
        return made;
    }

    // Rows stand relative to the bar, which is elsewhere than the offset where the list is scaled.
    place(offset) {
        const shift = this.top - offset;
        for (const [row, made] of this.rows) {
            const top = this.heights.top(row) + shift + 'px';
            if (made.style.top !== top) {
                made.style.top = top;
            }
        }
    }

    stick(offset) {
        if (!this.options.headOf || !this.count) {
            return;
        }
        const first = this.heights.at(offset);
        const head = this.options.headOf(first);
        if (head < 0 || this.heights.top(head) >= offset) {
            this.stuck.remove();
            this.stuckRow = -1;
            return;
        }
        if (this.stuckRow !== head) {
            this.stuckRow = head;
            empty(this.stuck).append(this.options.makeRow(head));
            this.stuck.firstChild.removeAttribute('id');
            this.stuck.dataset.row = head;
            this.space.append(this.stuck);
        }
        const height = this.options.rowHeight();
        let next = first + 1;
        while (next < this.count && this.options.headOf(next) === head && this.heights.top(next) < offset + height) {
            ++next;
        }
        const ends = next < this.count && this.options.headOf(next) !== head ? this.heights.top(next) : Infinity;
        this.stuck.style.top = this.top + Math.min(0, ends - offset - height) + 'px';
    }

    tellActive() {
        const made = this.rows.get(this.active);
        if (made) {
            this.scroller.setAttribute('aria-activedescendant', made.id);
        } else {
            this.scroller.removeAttribute('aria-activedescendant');
        }
    }

    setActive(row) {
        for (const [one, isNow] of [[this.active, false], [row, true]]) {
            const made = this.rows.get(one);
            if (made) {
                made.setAttribute('aria-selected', String(isNow));
                made.classList.toggle('isActive', isNow);
            }
        }
        this.active = row;
        this.tellActive();
    }

    // Of the row that stays above this one.
    headHeight(row) {
        const head = this.options.headOf ? this.options.headOf(row) : -1;
        return head >= 0 && head !== row ? this.options.rowHeight() : 0;
    }

    isInSight(row) {
        const top = this.heights.top(row);
        const {offset} = this;
        const head = this.headHeight(row);
        return top >= offset + head - 1
            && top + Math.min(this.heights.heights[row], this.view - head) <= offset + this.view + 1;
    }

    scrollTo(offset) {
        if (this.view) {
            this.setTop(offset);
            this.draw();
        } else {
            this.wanted = offset;
        }
    }

    // Into sight where it is not, to the middle when asked to.
    show(row, isCentered = false) {
        if (row < 0 || row >= this.count) {
            return;
        }
        if (isCentered || !this.isInSight(row)) {
            const head = this.headHeight(row);
            const room = this.view - head - this.heights.heights[row];
            this.scrollTo(this.heights.top(row) - head - Math.max(0, room / 2));
        } else {
            this.draw();
        }
    }

    // The least that brings it into sight, for going from row to row.
    reveal(row) {
        const head = this.headHeight(row);
        const top = this.heights.top(row);
        const bottom = top + this.heights.heights[row];
        const {offset} = this;
        if (top < offset + head) {
            this.scrollTo(top - head);
        } else if (bottom > offset + this.view) {
            this.scrollTo(Math.min(top - head, bottom - this.view));
        } else {
            this.draw();
        }
    }

    click(event) {
        const made = event.target.closest('[data-row]');
        const picked = String(window.getSelection && window.getSelection());
        if (made && this.space.contains(made) && !event.target.closest('button, a, input') && !picked) {
            this.options.move(Number(made.dataset.row), false, true);
        }
    }

    key(event) {
        if (event.target !== this.scroller || event.altKey || event.ctrlKey || event.metaKey || !this.count) {
            return;
        }
        const from = this.active >= 0 ? this.active : this.heights.at(this.offset) - 1;
        const page = Math.max(1, Math.floor(this.view / this.options.rowHeight()) - 1);
        const wanted = {ArrowUp: from - 1, ArrowDown: from + 1, PageUp: from - page, PageDown: from + page, Home: 0,
            End: this.count - 1, Enter: this.active}[event.key];
        if (wanted === undefined || event.key === 'Enter' && this.active < 0) {
            return;
        }
        event.preventDefault();
        const row = Math.max(0, Math.min(this.count - 1, wanted));
        this.options.move(row, event.key === 'Enter');
        if (event.key !== 'Enter') {
            this.reveal(row);
        }
    }
}

const mostMarks = 300;

// Marks beside a list's bar for rows, in order, that there is something to see at.
function showMarks(overview, list, rows, kindOf) {
    empty(overview);
    const every = Math.ceil(rows.length / mostMarks);
    for (let i = 0; i < rows.length; i += every) {
        const mark = element('span', {class: kindOf(rows[i])});
        mark.style.top = 100 * list.heights.top(rows[i]) / list.heights.total + '%';
        overview.append(mark);
    }
}
