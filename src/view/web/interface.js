// The automation interface as interface.txt describes it: classes, operations, properties and enumerations.

'use strict';

// Puts a value behind those of a key.
function addTo(map, key, value) {
    if (!map.has(key)) {
        map.set(key, []);
    }
    map.get(key).push(value);
}

const basicTypes = ['double', 'int', 'long', 'bool', 'string', 'object', 'typeNumber'];

function parametersOf(text) {
    const parameters = [];
    for (const part of text.split(',').map(one => one.trim()).filter(one => one)) {
        const [, out, type, times, name] = /^(out )?([\w[\]]+)(?: \* (\d+)| (\w+))?$/.exec(part) || [];
        if (!type) {
            throw new Error(JSON.stringify(part) + ' is no parameter');
        }
        for (let i = 0; i < Number(times || 1); ++i) {
            parameters.push({type: type, out: Boolean(out), name: name || ''});
        }
    }
    return parameters;
}

function addMember(cls, text) {
    const operation = /^(\w+)\((.*)\)(?: ([\w[\]]+))?$/.exec(text);
    const property = /^(\w+): ([\w[\]]+)$/.exec(text);
    if (operation) {
        cls.operations.push({name: operation[1], parameters: parametersOf(operation[2]), result: operation[3] || ''});
    } else if (property) {
        cls.properties.push({name: property[1], type: property[2]});
    } else {
        throw new Error(JSON.stringify(text) + ' is neither an operation nor a property');
    }
}

function checkTypes(known) {
    const types = new Set([...basicTypes, ...Object.keys(known.classes), ...Object.keys(known.enumerations)]);
    for (const cls of Object.values(known.classes)) {
        const used = cls.properties.map(one => [one.name, one.type]);
        for (const one of cls.operations) {
            used.push(...one.parameters.map(parameter => [one.name, parameter.type]), [one.name, one.result || 'int']);
        }
        for (const [member, type] of used) {
            if (!types.has(type.replace(/\[\]$/, ''))) {
                throw new Error(cls.name + '.' + member + ': ' + type + ' is no type');
            }
        }
    }
}

// As one target sees it. A base is the name of a class, or empty.
function readInterface(text, target) {
    const known = {classes: {}, enumerations: {}};
    let add = null;
    text.split('\n').forEach((raw, index) => {
        let line = raw.replace(/#.*/, '').trimEnd();
        const [, rest, only] = /^(.*?)\s*\[([a-z, ]+)\]$/.exec(line) || [];
        if (only && !only.split(',').map(one => one.trim()).includes(target)) {
            return;
        }
        line = only ? rest : line;
        const [, enumeration] = /^enum (\w+)$/.exec(line) || [];
        const [, name, base] = /^(\w+)(?: : (\w+))?$/.exec(line) || [];
        try {
            if (line.startsWith(' ')) {
                add(line.trim());
            } else if (enumeration) {
                const enumerators = known.enumerations[enumeration] = known.enumerations[enumeration] || [];
                add = one => enumerators.push(one);
            } else if (name) {
                if (base && !known.classes[base]) {
                    throw new Error('the base ' + base + ' has to stand in front of ' + name);
                }
                const cls = known.classes[name] = known.classes[name] || {name: name, base: base || '', operations: [],
                    properties: []};
                add = one => addMember(cls, one);
            } else if (line) {
                throw new Error(JSON.stringify(line) + ' begins neither a class nor an enumeration');
            }
        } catch (error) {
            throw new Error('interface.txt:' + (index + 1) + ': ' + error.message);
        }
    });
    checkTypes(known);
    return known;
}
