// The rules that let the build turn the modules into one script, and the labels into any language.
import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import test from 'node:test';
import { label, labels } from '../../modules/labels.js';

const root = new URL('../../', import.meta.url);
const read = (file) => readFileSync(new URL(file, root), 'utf8');
const modules = /set\(modules\s+([^)]*)\)/.exec(read('Bundle.cmake'))[1].trim().split(/\s+/);
const sources = new Map(modules.map((name) => [name, read(`modules/${name}.js`)]));
const topLevel = /^(?:export )?(?:async )?(?:function\*?|class|const|let) (?:\{([^}]*)\}|(\w+))/gm;

function importsOf(source) {
    return [...source.matchAll(/^import \{ ([^}]*) \} from '\.\/([\w-]+)\.js';$/gm)]
        .map(([, names, from]) => ({ names: names.split(', '), from }));
}

test('the build has every module', () => {
    const files = readdirSync(new URL('modules/', root)).map((file) => file.replace(/\.js$/, ''));
    assert.deepEqual([...modules].sort(), files.sort());
});

test('modules import names, at their beginning, from modules before them', () => {
    for (const [name, source] of sources) {
        const imports = importsOf(source);
        assert.equal((source.match(/\bimport\b(?! on)/g) ?? []).length, imports.length, name);
        assert.match(source, /^(\/\/.*\n|\n)*(import .*\n)*\n?(?!import)/);
        for (const { names, from } of imports) {
            assert.ok(modules.indexOf(from) >= 0 && modules.indexOf(from) < modules.indexOf(name), `${name}: ${from}`);
            for (const imported of names)
                assert.match(sources.get(from), new RegExp(`^export (async )?(function|class|const) ${imported}\\b`, 'm'));
        }
    }
});

test('modules export functions, classes and constants where they declare them', () => {
    for (const [name, source] of sources) {
        for (const [line] of source.matchAll(/^.*\bexport\b.*$/gm))
            assert.match(line, /^export (async )?(function|class|const) \w+/, name);
    }
});

test('no name is declared by two modules', () => {
    const owners = new Map();
    for (const [name, source] of sources) {
        for (const [, , declared] of source.matchAll(topLevel)) {
            assert.ok(declared, name);
            assert.equal(owners.get(declared), undefined, `${declared} in ${name} and ${owners.get(declared)}`);
            owners.set(declared, name);
        }
    }
    assert.ok(owners.size > 50);
});

test('every label is used, and every label that is used exists', () => {
    const code = [...sources].filter(([name]) => name !== 'labels').map(([, source]) => source).join('');
    const markup = read('index.html');
    const reported = [...read('../examples/publish_video/Problems.cpp').matchAll(/\{\{"([a-z-]+)"/g)].map(([, kind]) => kind);
    assert.ok(reported.length > 0);
    for (const key of Object.keys(labels)) {
        if (key === 'language' || reported.includes(key)) continue;
        assert.ok(code.includes(`'${key}'`) || markup.includes(`="${key}"`), `${key} is not used`);
    }
    const used = [
        ...markup.matchAll(/data-(?:label|name)="(\w+)"/g),
        ...code.matchAll(/\blabel\('(\w+)'/g), ...code.matchAll(/\['(fact\w+)'/g),
        ...code.matchAll(/problem\('(\w+)'/g), ...code.matchAll(/PacketError\('(\w+)'/g),
    ].map(([, key]) => key);
    for (const key of [...used, ...reported]) assert.ok(key in labels, key);
});

test('labels take values and plurals', () => {
    assert.equal(label('hits', { count: 1 }), '1 hit');
    assert.equal(label('hits', { count: 1234 }), '1,234 hits');
    assert.equal(label('by', { creator: '{creator} $& <b>' }), 'by {creator} $& <b>');
});

test('no text becomes markup or script', () => {
    for (const [name, source] of sources)
        assert.doesNotMatch(source, /innerHTML|outerHTML|insertAdjacentHTML|document\.write|\beval\b|new Function/, name);
});
