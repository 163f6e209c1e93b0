// Gives the page the classes of a library whose model has the drawing of its recording.

'use strict';

const tables = new Tables(TEXTS, 'javascript');
const model = startModel(tables, parseLines(RECORDING));

Object.assign(window, new Library(tables.known, model).globals);
