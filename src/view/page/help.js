// The keys of the page, in a window of their own.

'use strict';

const keysInWords = [
    ['Everywhere', [
        ['1 2 3', 'go to drawing, steps, macro'], ['/', 'find object, step or line'],
        ['n p', 'next, previous finding; in differences the next, previous difference'],
        ['l', 'lost steps only, and all again'], ['d', 'differences, and back'],
        ['g then a letter', 'another target: '], ['Esc', 'choose nothing, close'], ['?', 'this help']]],
    ['Drawing', [
        ['arrows + −', 'move, larger, smaller'], ['f Shift+f', 'all, the chosen object'],
        ['[ ]', 'previous, next object'], ['Space', 'play the steps'], ['drag, wheel', 'move, zoom'],
        ['double click', 'fit the object']]],
    ['Steps and macro', [
        ['↑ ↓ PgUp PgDn Home End', 'go from row to row, the other panes follow'],
        ['Enter', 'bring it to the middle of the other panes'],
        ['← → at a gap', 'change the widths; Home as they were']]]
];

function targetLettersInWords(data) {
    return data.index.targets.filter(target => targetLetters[target.name])
        .map(target => targetLetters[target.name] + ' ' + target.title).join(', ');
}

function keyRow(data, [keys, words]) {
    const name = element('dt', {});
    keys.split(' ').forEach((key, i) => name.append(i ? ' ' : '',
        /^(then|a|letter|at|gap|drag,|wheel|double|click|arrows)$/.test(key) ? key : element('kbd', {}, key)));
    return [name, element('dd', {}, words + (words.endsWith(': ') ? targetLettersInWords(data) : ''))];
}

function startHelp(data) {
    const help = byId('help');
    help.append(element('div', {class: 'helpHead'}, element('h2', {}, 'Keys'),
        button('Close', {}, () => help.close())));
    for (const [title, rows] of keysInWords) {
        help.append(element('h3', {}, title), element('dl', {class: 'keys'},
            ...[].concat(...rows.map(row => keyRow(data, row)))));
    }
    help.append(textElement('p', {class: 'muted'}, 'inkmacro ' + data.index.version + '. Letters are off while a field '
        + 'has the focus. The address tells what is chosen; nothing is stored, and nothing is fetched.'));
    help.addEventListener('click', event => {
        if (event.target === help) {
            help.close();
        }
    });
    byId('helpButton').addEventListener('click', showHelp);
}

function showHelp() {
    if (!byId('help').open) {
        byId('help').showModal();
    }
}
