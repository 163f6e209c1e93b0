// Runs the script of a macro's page in node, behind the scripts of ../web.

'use strict';

const vm = require('vm');

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
        const {text, before} = scriptOf(page) || {text: '', before: 0};
        vm.runInContext(text, context, {filename: name, lineOffset: before});
        vm.runInContext('runMacro()', context, {filename: 'call'});
        return null;
    } catch (error) {
        return {line: lineOf(error, name), message: error && error.message || 'it throws ' + String(error)};
    }
}

module.exports = {runPage: runPage, runningLine: runningLine};
