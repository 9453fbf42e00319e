import assert from 'node:assert/strict';
import test from 'node:test';
import { PacketSearch, fold, splitAtMatches } from '../../modules/search.js';

const folded = [
    ['case', '\u00c4pfeL', 'apfel'], ['the German sharp s', 'wei\u00df', 'weiss'], ['accents', 'cafe\u0301 \u00e0', 'cafe a'], ['Greek sigma', '\u03a3\u03c2', '\u03c3\u03c3'],
    ['Arabic points', '\u0642\u064e\u0627\u0631\u0650\u0628', '\u0642\u0627\u0631\u0628'],
    ['Hebrew points', '\u05e9\u05c1\u05dc', '\u05e9\u05dc'],
    ['width', '\uff21\uff22 \uff76', 'ab \u30ab'], ['invisible characters', '\u200fa\u00adb', 'ab'],
    ['line feeds', 'a\nb', 'a b'],
];
for (const [name, text, expected] of folded)
    test(`the search ignores ${name}`, () => assert.equal(fold(text), expected));

test('marks that make another letter are not ignored', () => {
    assert.notEqual(fold('\u304c'), fold('\u304b'));
    assert.notEqual(fold('\u0915\u093f'), fold('\u0915'));
});

test('a text is split at each match', () => {
    assert.deepEqual(splitAtMatches('A cat, a Cat', 'cat'), ['A ', 'cat', ', a ', 'Cat', '']);
    assert.deepEqual(splitAtMatches('none', 'cat'), ['none']);
});

test('a match has the characters of the text, whatever their folded length', () => {
    assert.deepEqual(splitAtMatches('\ufb01n \ud83d\ude00 Caf\u00e9!', 'fi'), ['', '\ufb01', 'n \ud83d\ude00 Caf\u00e9!']);
    assert.deepEqual(splitAtMatches('le cafe\u0301 \u2026', 'cafe'), ['le ', 'cafe\u0301', ' \u2026']);
});

const packet = {
    languages: [{ id: 'en' }, { id: 'de' }],
    captions: { items: [
        { start: 5, texts: new Map([['en', 'A boat'], ['de', 'Ein Boot']]) },
        { start: 9, texts: new Map([['en', 'No boat'], ['de', '']]) },
    ] },
    contents: { items: [{ start: 7, text: 'Boats' }] },
    screenTexts: { items: [{ start: 1, text: 'BOAT' }] },
};

test('hits are in all sets and languages, in the order of their times', () => {
    const hits = new PacketSearch(packet).find('boat');
    assert.deepEqual(hits.map(({ kind, time }) => [kind, time]), [
        ['hitInScreenText', 1], ['hitInCaption', 5], ['hitInContents', 7], ['hitInCaption', 9],
    ]);
    assert.deepEqual(new PacketSearch(packet).find('boot').map(({ language }) => language), ['de']);
});

test('nothing is found for nothing', () => {
    assert.deepEqual(new PacketSearch(packet).find(''), []);
});

test('an index that was built in part finds the same', () => {
    const search = new PacketSearch(packet);
    assert.equal(search.addToIndex(2), true);
    assert.deepEqual(search.find('boat'), new PacketSearch(packet).find('boat'));
    assert.equal(search.addToIndex(1), false);
});
