// Elements of the page, and how recorded text gets into them.

'use strict';

const drawingNames = 'http://www.w3.org/2000/svg';

function putAttributes(into, attributes) {
    for (const [name, value] of Object.entries(attributes)) {
        if (value !== null && value !== undefined && value !== false) {
            into.setAttribute(name, value === true ? '' : String(value));
        }
    }
}

// An element with attributes and what it holds: elements and texts, the texts without marks for what is invisible.
function element(tag, attributes = {}, ...held) {
    const made = document.createElement(tag);
    putAttributes(made, attributes);
    made.append(...held);
    return made;
}

function button(text, attributes, act) {
    const made = element('button', Object.assign({type: 'button'}, attributes), text);
    made.addEventListener('click', act);
    return made;
}

// A drawing of 18 units square whose paths are stroked, or filled where their class says so.
function icon(paths, attributes = {}) {
    const made = document.createElementNS(drawingNames, 'svg');
    putAttributes(made, Object.assign({viewBox: '0 0 18 18', class: 'icon', 'aria-hidden': 'true'}, attributes));
    for (const path of [].concat(paths)) {
        const line = document.createElementNS(drawingNames, 'path');
        line.setAttribute('d', path);
        made.append(line);
    }
    return made;
}

function byId(id) {
    return document.getElementById(id);
}

function empty(one) {
    one.textContent = '';
    return one;
}

// What has no look of its own, or changes that of its neighbours: control characters, directions, widths of nothing,
// halves of pairs. A tab has a look in code alone. Words mark them: few fonts have the signs for control characters.
const unseen = new RegExp('[\\u0000-\\u001f\\u007f-\\u009f\\u00ad\\u061c\\u115f\\u1160\\u17b4\\u17b5\\u180b-\\u180f'
    + '\\u200b-\\u200f\\u2028-\\u202e\\u2060-\\u206f\\u3164\\ufe00-\\ufe0f\\ufeff\\uffa0\\ufff9-\\ufffb]'
    + '|\\udb40[\\udc00-\\udfff]|[\\ud800-\\udbff](?![\\udc00-\\udfff])|(?<![\\ud800-\\udbff])[\\udc00-\\udfff]', 'g');
const controlNames = ('NUL SOH STX ETX EOT ENQ ACK BEL BS TAB LF VT FF CR SO SI DLE DC1 DC2 DC3 DC4 NAK SYN ETB CAN EM '
    + 'SUB ESC FS GS RS US').split(' ');
const namesOfUnseen = {0x7f: ['DEL', 'control character'], 0x85: ['NEL', 'next line'], 0xad: ['SHY', 'soft hyphen'],
    0x61c: ['ALM', 'Arabic letter mark'],
    0x200b: ['ZWSP', 'zero-width space'], 0x200c: ['ZWNJ', 'zero-width non-joiner'],
    0x200d: ['ZWJ', 'zero-width joiner'], 0x200e: ['LRM', 'left-to-right mark'], 0x200f: ['RLM', 'right-to-left mark'],
    0x2028: ['LS', 'line separator'], 0x2029: ['PS', 'paragraph separator'],
    0x202a: ['LRE', 'left-to-right embedding'], 0x202b: ['RLE', 'right-to-left embedding'],
    0x202c: ['PDF', 'pop directional formatting'], 0x202d: ['LRO', 'left-to-right override'],
    0x202e: ['RLO', 'right-to-left override'], 0x2060: ['WJ', 'word joiner'], 0x2066: ['LRI', 'left-to-right isolate'],
    0x2067: ['RLI', 'right-to-left isolate'], 0x2068: ['FSI', 'first strong isolate'],
    0x2069: ['PDI', 'pop directional isolate'], 0xfeff: ['BOM', 'byte-order mark']};

function markOf(unseenText) {
    const code = unseenText.codePointAt(0);
    const number = code.toString(16).toUpperCase().padStart(4, '0');
    const [short, words] = controlNames[code] ? [controlNames[code], 'control character']
        : namesOfUnseen[code] || [number, 'character without a look'];
    return {sign: '\u2039' + short + '\u203a', title: words + ', U+' + number};
}

// A text in pieces: plain ones, and marks in place of what is invisible.
function piecesOf(text, keepsTabs = false) {
    const pieces = [];
    let from = 0;
    for (const match of text.matchAll(unseen)) {
        if (keepsTabs && match[0] === '\t') {
            continue;
        }
        if (match.index > from) {
            pieces.push({text: text.slice(from, match.index)});
        }
        pieces.push(markOf(match[0]));
        from = match.index + match[0].length;
    }
    if (from < text.length) {
        pieces.push({text: text.slice(from)});
    }
    return pieces;
}

// For attributes, which hold no elements.
function visibleText(text) {
    return piecesOf(String(text)).map(piece => piece.text || piece.sign).join('');
}

// Adds recorded text to an element, which is returned.
function putText(into, text, keepsTabs = false) {
    for (const piece of piecesOf(String(text), keepsTabs)) {
        into.append(piece.sign ? element('span', {class: 'unseenMark', title: piece.title}, piece.sign) : piece.text);
    }
    return into;
}

// An element that holds recorded text, which does not change the direction of what stands around it.
function textElement(tag, attributes, text) {
    return putText(element(tag, Object.assign({}, attributes,
        {class: ((attributes || {}).class || '') + ' recordedText'})), text);
}

function countOf(count, one, many = one + 's') {
    return count.toLocaleString('en') + ' ' + (count === 1 ? one : many);
}

// Tabs of a row, between which arrows go; `tabs` are [{name, made}], and `choose(name)` is called.
function bindTabs(list, tabs, choose) {
    list.setAttribute('role', 'tablist');
    tabs.forEach(({name, made}, i) => {
        putAttributes(made, {role: 'tab', 'data-name': name});
        made.addEventListener('click', () => choose(name));
        made.addEventListener('keydown', event => {
            const to = {ArrowLeft: i - 1, ArrowRight: i + 1, Home: 0, End: tabs.length - 1}[event.key];
            if (to !== undefined && !event.ctrlKey && !event.altKey && !event.metaKey) {
                const next = tabs[(to + tabs.length) % tabs.length];
                next.made.focus();
                choose(next.name);
                event.preventDefault();
            }
        });
    });
}

function selectTab(tabs, name) {
    for (const tab of tabs) {
        tab.made.setAttribute('aria-selected', String(tab.name === name));
        tab.made.tabIndex = tab.name === name ? 0 : -1;
    }
}
