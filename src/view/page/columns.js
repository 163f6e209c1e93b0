// Islands of the page: compressed bytes in elements of their own, and tables of numbers within them.

'use strict';

const columnTypes = {u8: Uint8Array, u16: Uint16Array, u32: Uint32Array, i32: Int32Array, d32: Int32Array,
    f64: Float64Array};
const columnAlignment = 8; // bytes

function bytesOfBase64(text) {
    if (Uint8Array.fromBase64) {
        return Uint8Array.fromBase64(text);
    }
    const letters = atob(text);
    const bytes = new Uint8Array(letters.length);
    for (let i = 0; i < letters.length; ++i) {
        bytes[i] = letters.charCodeAt(i);
    }
    return bytes;
}

// Of zlib's format, given in pieces; nothing at all is the form of nothing.
async function inflated(pieces) {
    if (pieces.every(piece => piece.length === 0)) {
        return new Uint8Array(0);
    }
    const stream = new Blob(pieces).stream().pipeThrough(new DecompressionStream('deflate'));
    return new Uint8Array(await new Response(stream).arrayBuffer());
}

// Each number is the difference to the one before, modulo 2^32.
function sumUp(numbers) {
    let sum = 0;
    for (let i = 0; i < numbers.length; ++i) {
        sum = sum + numbers[i] | 0;
        numbers[i] = sum;
    }
    return numbers;
}

// The columns of an island by their names; the layout tells name, type and count of each. All are little endian, as is
// every machine that runs a browser of today. They are views of the bytes, which are changed by that.
function columnsOf(bytes, layout) {
    const columns = {};
    let offset = 0;
    for (const [name, type, count] of layout) {
        const Column = columnTypes[type];
        offset = Math.ceil(offset / columnAlignment) * columnAlignment;
        if (offset + count * Column.BYTES_PER_ELEMENT > bytes.byteLength) {
            throw new Error('the data of the page are damaged: column "' + name + '" is not complete');
        }
        columns[name] = new Column(bytes.buffer, bytes.byteOffset + offset, count);
        if (type === 'd32') {
            sumUp(columns[name]);
        }
        offset += count * Column.BYTES_PER_ELEMENT;
    }
    return columns;
}

const lineFeed = 10;
const carriageReturn = 13;

// The lines of a text that stays bytes; one is decoded when it is asked for.
class Lines {
    constructor(bytes) {
        this.bytes = bytes;
        this.decoder = new TextDecoder('utf-8');
        let count = 0;
        for (let at = bytes.indexOf(lineFeed); at >= 0; at = bytes.indexOf(lineFeed, at + 1)) {
            ++count;
        }
        const endsOpen = bytes.length > 0 && bytes[bytes.length - 1] !== lineFeed;
        this.count = count + (endsOpen ? 1 : 0);
        this.starts = new Uint32Array(this.count + 1);
        for (let line = 1, at = -1; line <= count; ++line) {
            at = bytes.indexOf(lineFeed, at + 1);
            this.starts[line] = at + 1;
        }
        this.starts[this.count] = bytes.length;
    }

    // From 0, without its end.
    line(number) {
        let end = this.starts[number + 1];
        if (end > this.starts[number] && this.bytes[end - 1] === lineFeed) {
            --end;
        }
        if (end > this.starts[number] && this.bytes[end - 1] === carriageReturn) {
            --end;
        }
        return this.decoder.decode(this.bytes.subarray(this.starts[number], end));
    }

    text() {
        return this.decoder.decode(this.bytes);
    }

    // Of lines from 0, `to` not among them, with their ends.
    slice(from, to) {
        return this.bytes.subarray(this.starts[from], this.starts[to]);
    }

    lineAt(offset) {
        return lastNotAbove(this.starts, offset, this.count);
    }
}

// The last place among the first `count` of sorted numbers that does not hold more than the value; -1 for none.
function lastNotAbove(sorted, value, count = sorted.length) {
    let low = 0;
    let high = count;
    while (low < high) {
        const middle = low + high >>> 1;
        if (sorted[middle] <= value) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low - 1;
}
