// Prints the automation interface as one target sees it, as JSON.

'use strict';

const {readInterface, texts} = require('../web/web');

process.stdout.write(JSON.stringify(readInterface(texts['interface.txt'], process.argv[2])));
