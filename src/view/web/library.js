// The classes of the automation interface in JavaScript, as a macro finds them: they can be asked for nothing but what
// the interface has, with arguments of its types, and hold no other properties.

'use strict';

// The library of one model: `given` gives a thing as an object of a class, `globals` is what stands in a page's global
// scope. In stacks of calls its operations are named libraryCall.
class Library {
    constructor(known, model) {
        this.known = known;
        this.model = model;
        this.things = new WeakMap();
        this.classes = {};
        const library = this;
        for (const name of [...Object.keys(known.classes), 'Found']) {
            this.classes[name] = {[name]: class {
                constructor(thing) {
                    library.things.set(this, thing);
                    Object.freeze(this);
                }
            }}[name];
        }
        for (const cls of Object.values(known.classes)) {
            if (cls.base) {
                Object.setPrototypeOf(this.classes[cls.name].prototype, this.classes[cls.base].prototype);
            }
            cls.operations.forEach(one => this.addOperation(cls.name, one));
            cls.properties.forEach(one => this.addProperty(cls.name, one));
        }
        // What is found by its handle is of whatever class a macro takes it for.
        for (const name of Object.keys(known.classes)) {
            const descriptors = Object.getOwnPropertyDescriptors(this.classes[name].prototype);
            delete descriptors.constructor;
            Object.defineProperties(this.classes.Found.prototype, descriptors);
        }
        this.globals = {ijScriptManager: this.scriptManager()};
        // Some statements quote the names of enumerators and some do not.
        for (const name of [].concat(...Object.values(known.enumerations))) {
            this.globals[name] = name;
        }
    }

    scriptManager() {
        const library = this;
        return function ijScriptManager() {
            return {getApplication: () => library.object('Application', library.model.application)};
        };
    }

    object(type, thing) {
        const name = type === 'object' ? thing.cls : type;
        return new this.classes[name === 'FoundObject' ? 'Found' : name](thing);
    }

    isOf(type, value) {
        if (type.endsWith('[]')) {
            // A call that can do without an array is given none.
            return value === null || Array.isArray(value)
                && Array.from(value).every(one => this.isOf(type.slice(0, -2), one)); // without holes
        }
        switch (type) {
        case 'double': return typeof value === 'number' && isFinite(value);
        case 'int':
        case 'long': return Number.isInteger(value);
        // Of iwObjectType_e; no object has the first one.
        case 'typeNumber': return Number.isInteger(value) && value > 0;
        case 'bool': return typeof value === 'boolean';
        case 'string': return typeof value === 'string';
        case 'object': return true;
        }
        const enumerators = this.known.enumerations[type];
        return enumerators ? enumerators.includes(value)
            : value instanceof this.classes[type] || value instanceof this.classes.Found;
    }

    given(value) {
        return Array.isArray(value) ? Array.from(value, one => this.given(one)) : this.things.get(value) || value;
    }

    result(type, value) {
        if (Array.isArray(value)) {
            return value.map(one => this.result(type.slice(0, -2), one));
        }
        return value instanceof Thing ? this.object(type, value) : value;
    }

    addOperation(cls, {name, parameters, result}) {
        const library = this;
        const taken = parameters.filter(one => !one.out).map(one => one.type);
        const outs = parameters.filter(one => one.out);
        const types = (result ? [result] : []).concat(outs.map(one => one.type));
        const names = (result ? [''] : []).concat(outs.map(one => one.name));
        const call = function libraryCall(...given) {
            if (given.length !== taken.length || !taken.every((type, i) => library.isOf(type, given[i]))) {
                throw new TypeError(name + '(' + given.map(String).join(', ') + ') does not take these arguments');
            }
            const answers = library.model.call(library.things.get(this), name, library.given(given), types)
                .map((one, i) => library.result(types[i], one));
            if (answers.length < 2) {
                return answers[0];
            }
            // Several results come as an array, which has them by their names too.
            names.forEach((one, i) => {
                if (one) {
                    answers[one] = answers[i];
                }
            });
            return answers;
        };
        Object.defineProperty(this.classes[cls].prototype, name, {configurable: true, value: call});
    }

    addProperty(cls, {name, type}) {
        this.addOperation(cls, {name: 'put_' + name, parameters: [{type: type, out: false, name: ''}], result: ''});
        this.addOperation(cls, {name: 'get_' + name, parameters: [], result: type});
        const prototype = this.classes[cls].prototype;
        Object.defineProperty(prototype, name, {get: prototype['get_' + name], configurable: true});
    }
}
