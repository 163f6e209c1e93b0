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

const pageName = 'macro.html';

// The line of the macro that is running, or null.
function runningLine() {
    const error = {};
    const {stackTraceLimit} = Error;
    Error.stackTraceLimit = 12; // what the library calls stands in front
    Error.captureStackTrace(error, runningLine);
    Error.stackTraceLimit = stackTraceLimit;
    return lineOf(error, pageName);
}

// The error that stops it, or null. A macro that ends at once draws nothing, which is no error.
function runPage(page, globals) {
    const name = pageName;
    const context = vm.createContext(Object.assign({}, globals));
    try {
        vm.runInContext(scriptOf(page), context, {filename: name});
        vm.runInContext('runMacro()', context, {filename: 'call'});
        return null;
    } catch (error) {
        return {line: lineOf(error, name), message: error && error.message || 'it throws ' + String(error)};
    }
}

module.exports = {runPage: runPage, runningLine: runningLine};
