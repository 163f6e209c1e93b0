// Runs the script of a macro's page in node.

'use strict';

const vm = require('vm');

// The text of the page's own script, in the lines where it stands.
function scriptOf(page) {
    const begin = page.lastIndexOf('<script type="text/javascript">');
    const from = page.indexOf('>', begin) + 1;
    const end = page.indexOf('</script>', from);
    return '\n'.repeat(page.slice(0, from).split('\n').length - 1) + page.slice(from, end);
}

// The line of the macro that an error comes of, null when it is none of its own.
function lineOf(error, name) {
    const at = String(error && error.stack).split('\n').map(line => line.lastIndexOf(name + ':') < 0 ? null
        : Number(line.slice(line.lastIndexOf(name + ':') + name.length + 1).split(/\D/)[0])).find(line => line);
    return at || null;
}

// The error that stops it, or null. A macro that ends at once draws nothing, which is no error.
function runPage(page, globals) {
    const name = 'macro.html';
    const context = vm.createContext(Object.assign({}, globals));
    try {
        vm.runInContext(scriptOf(page), context, {filename: name});
        vm.runInContext('runMacro()', context, {filename: 'call'});
        return null;
    } catch (error) {
        return {line: lineOf(error, name), message: error && error.message ? error.message : String(error)};
    }
}

module.exports = {runPage: runPage};
