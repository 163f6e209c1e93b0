// What is printed: the report, the picture, the steps and the open macro.

'use strict';

const mostPrintedSteps = 2000;
const mostPrintedLines = 10000;

function restOf(count, shown, what) {
    const rest = countOf(count - shown, 'more ' + what, 'more ' + what + 's');
    return count > shown ? [element('p', {}, 'and ' + rest)] : [];
}

function tableRow(cell, texts) {
    return element('tr', {}, ...texts.map(text => textElement(cell, {}, text)));
}

function printedReport(data, target, form) {
    const notes = data.notesOf(target, form).map(note => [note.kind === 'loss' ? 'lost' : 'assumed',
        'line ' + note.line, note.what, note.reason]);
    const faults = data.faults(target, data.faultyForm(target, form)).map(fault => [
        fault.mended ? 'fault, repaired' : 'fault',
        fault.lines.length ? 'macro ' + fault.lines.slice(0, 10).join(', ') : '', fault.operation, fault.reason]);
    const rows = [...notes, ...faults];
    const head = [textElement('h1', {}, data.index.name), element('p', {}, countsInWords(data.index))];
    const title = element('h2', {}, 'Report for ' + data.target(target).title);
    if (!rows.length) {
        return [...head, title, element('p', {}, 'No losses, no assumptions and no faults.')];
    }
    return [...head, title, element('table', {}, element('thead', {}, tableRow('th', ['', 'Where', 'What', 'Reason'])),
        element('tbody', {}, ...rows.slice(0, mostPrintedSteps).map(row => tableRow('td', row)))),
    ...restOf(rows.length, mostPrintedSteps, 'row')];
}

function printedSteps(data, findings) {
    const list = element('ol', {});
    const count = Math.min(data.steps.count, mostPrintedSteps);
    for (let step = 0; step < count; ++step) {
        const isCommand = data.kindOf(step) === 'command';
        const handle = data.handleText(step);
        const item = textElement('li', {class: isCommand ? 'isCommand' : ''}, stepWords(data, step)
            + (handle ? ' ' + handle : '') + (data.steps.parent[step] < 0 ? ', line ' + data.steps.line[step] : ''));
        findings.of(step).forEach(finding => item.append(findingElement(finding)));
        list.append(item);
    }
    return [element('h2', {}, 'Steps'), list, ...restOf(data.steps.count, mostPrintedSteps, 'step')];
}

function printedMacro(data, view) {
    const {lines} = view;
    const list = element('ol', {class: 'code'});
    for (let line = 0; line < Math.min(lines.count, mostPrintedLines); ++line) {
        list.append(paintInto(element('li', {}), view.painter.pieces(lines.line(line))));
    }
    const {title, file} = data.target(view.target);
    const form = formNames[view.form === 'differences' ? 'repaired' : view.form].toLowerCase();
    return [element('h2', {}, title + ', ' + form),
        textElement('p', {}, file), list, ...restOf(lines.count, mostPrintedLines, 'line')];
}

function startPrint(data, steps, macro) {
    const parts = ['printedReport', 'printedSteps', 'printedMacro', 'printedFoot'];
    window.addEventListener('beforeprint', () => {
        const {target, form} = state.get();
        empty(byId('printedReport')).append(...printedReport(data, target, form));
        empty(byId('printedSteps')).append(...printedSteps(data, steps.findings));
        empty(byId('printedMacro')).append(...macro.view ? printedMacro(data, macro.view) : []);
        putText(empty(byId('printedFoot')), data.index.input + ', inkmacro ' + data.index.version);
    });
    window.addEventListener('afterprint', () => parts.forEach(id => empty(byId(id))));
}
