// The program's own scripts and tables, for tests in node.

'use strict';

const fs = require('fs');
const path = require('path');
const vm = require('vm');

const folder = path.join(__dirname, '../../src/view/web');
const read = name => fs.readFileSync(path.join(folder, name), 'utf8');
// What is compared to the last digit tells so.
const closeness = process.env.INKMACRO_TOLERANCE;
const script = name => closeness ? read(name).replace('const tolerance = 1e-9;', `const tolerance = ${closeness};`)
    : read(name);

for (const name of read('scripts.list').split('\n').filter(one => one)) {
    vm.runInThisContext(script(name), {filename: path.join(folder, name)});
}

module.exports = vm.runInThisContext(`({readInterface, meetsWindow, offeredObjects, Thing, Model, Library, Places, Calls,
    callPlaces, giveLines, alignLines, Tables, parseLines, startModel, compareRun, verificationText})`);
module.exports.texts = Object.fromEntries(fs.readdirSync(folder).filter(name => name.endsWith('.txt'))
    .map(name => [name, read(name)]));
