// An index of boxes for windows and points: grids of cells of which each is four times as wide as in the one before.
// A box is in the one cell that holds its center, of the first grid whose cells are as large as itself, so it reaches
// at most half a cell beyond its own, and is found once.

'use strict';

const widening = 4;
const mostCells = 4096; // along one side

class Grid {
    // `boxes` has four numbers for each of the `items`; empty ones are left out.
    constructor(boxes, items) {
        this.boxes = boxes;
        const around = new Box();
        for (const item of items) {
            around.addStored(boxes, item);
        }
        this.left = around.left;
        this.bottom = around.bottom;
        this.right = around.right;
        this.top = around.top;
        this.makeLevels(around, items.length);
        const cells = new Int32Array(items.length);
        this.first = new Int32Array(this.cellCount + 1);
        for (let i = 0; i < items.length; i++) {
            cells[i] = this.cellOf(items[i]);
            if (cells[i] >= 0) {
                this.first[cells[i] + 1]++;
            }
        }
        for (let cell = 0; cell < this.cellCount; cell++) {
            this.first[cell + 1] += this.first[cell];
        }
        this.items = new Int32Array(this.first[this.cellCount]);
        const next = this.first.slice();
        for (let i = 0; i < items.length; i++) {
            if (cells[i] >= 0) {
                this.items[next[cells[i]]++] = items[i];
            }
        }
    }

    makeLevels(around, count) {
        const width = around.isEmpty ? 0 : around.right - around.left;
        const height = around.isEmpty ? 0 : around.top - around.bottom;
        const longest = Math.max(width, height);
        const wanted = Math.sqrt(Math.max(width * height, longest * longest / 1e3) / Math.max(count, 1));
        let size = Math.max(wanted, longest / mostCells) || 1;
        this.levels = [];
        this.cellCount = 0;
        for (;;) {
            const columns = Math.floor(width / size) + 1;
            const rows = Math.floor(height / size) + 1;
            this.levels.push({size: size, columns: columns, rows: rows, start: this.cellCount});
            this.cellCount += columns * rows;
            if (size > longest || !isFinite(longest)) {
                return;
            }
            size *= widening;
        }
    }

    cellOf(item) {
        const left = this.boxes[4 * item];
        const bottom = this.boxes[4 * item + 1];
        const right = this.boxes[4 * item + 2];
        const top = this.boxes[4 * item + 3];
        if (!(left <= right)) {
            return -1;
        }
        const extent = Math.max(right - left, top - bottom);
        let n = 0;
        while (n + 1 < this.levels.length && extent > this.levels[n].size) {
            n++;
        }
        const level = this.levels[n];
        const column = Math.floor(((left + right) / 2 - this.left) / level.size);
        const row = Math.floor(((bottom + top) / 2 - this.bottom) / level.size);
        return level.start + Math.min(row, level.rows - 1) * level.columns + Math.min(column, level.columns - 1);
    }

    // How much of what the items lie in is within a box, by its area.
    shareOf(box) {
        const share = (low, high, from, to) => high > low ? Math.max(0, Math.min(high, to) - Math.max(low, from)) /
            (high - low) : 1;
        return share(this.left, this.right, box.left, box.right) * share(this.bottom, this.top, box.bottom, box.top);
    }

    // Puts those that meet the window into `found`, in no order, and returns how many they are.
    query(left, bottom, right, top, found) {
        const boxes = this.boxes;
        let count = 0;
        for (let n = 0; n < this.levels.length; n++) {
            const {size, columns, rows, start} = this.levels[n];
            const firstColumn = Math.max(0, Math.floor((left - this.left) / size - 0.5));
            const lastColumn = Math.min(columns - 1, Math.floor((right - this.left) / size + 0.5));
            const firstRow = Math.max(0, Math.floor((bottom - this.bottom) / size - 0.5));
            const lastRow = Math.min(rows - 1, Math.floor((top - this.bottom) / size + 0.5));
            for (let row = firstRow; row <= lastRow; row++) {
                // Cells of a row lie behind one another, and so do what they hold.
                const end = lastColumn < firstColumn ? 0 : this.first[start + row * columns + lastColumn + 1];
                for (let i = this.first[start + row * columns + firstColumn]; i < end; i++) {
                    const item = this.items[i];
                    if (boxes[4 * item] <= right && boxes[4 * item + 2] >= left && boxes[4 * item + 1] <= top &&
                        boxes[4 * item + 3] >= bottom) {
                        found[count++] = item;
                    }
                }
            }
        }
        return count;
    }

    queryPoint(x, y, reach, found) {
        return this.query(x - reach, y - reach, x + reach, y + reach, found);
    }
}
