import assert from 'node:assert/strict';
import test from 'node:test';
import { findProblems, readReport } from '../../modules/problems.js';

const caption = (start, end, texts) => ({ start, end, texts: new Map(Object.entries(texts)) });

function packetWith({ captions = [], entries = [], screenTexts = [], faults = [], length = 1000, languages = ['en', 'de'] }) {
    return {
        header: { length }, faults,
        languages: languages.map((id) => ({ id, name: `name of ${id}` })),
        captions: { items: captions }, contents: { items: entries }, screenTexts: { items: screenTexts },
    };
}

function kindsOf(parts) {
    return findProblems(packetWith(parts)).problems.map(({ key, places }) => [key, places.map(({ time }) => time)]);
}

const complete = { en: 'a', de: 'b' };

test('a packet without problems has none', () => {
    assert.deepEqual(kindsOf({
        captions: [caption(0, 500, complete), caption(500, 1000, complete)],
        entries: [{ start: 0, end: 1000, text: 'x' }],
        screenTexts: [{ start: 0, end: 1000, text: 'y', entry: 0 }],
    }), []);
});

test('captions overlap only in a language that both have', () => {
    const parts = { captions: [caption(0, 500, { en: 'a', de: '' }), caption(400, 900, { en: '', de: 'b' })] };
    assert.deepEqual(kindsOf(parts).filter(([key]) => key === 'overlapIn'), []);
});

test('an overlap names the language and both texts', () => {
    const captions = [caption(0, 500, { en: 'first' }), caption(499, 900, { en: 'second' })];
    const { problems: [problem] } = findProblems(packetWith({ captions, languages: ['en'] }));
    assert.equal(problem.language, 'name of en');
    assert.deepEqual(problem.places, [{ time: 499, language: 'en', text: 'second', earlier: 'first' }]);
});

test('a caption overlaps with a long one before its predecessor', () => {
    const captions = [caption(0, 900, { en: 'a' }), caption(100, 200, { en: 'b' }), caption(300, 400, { en: 'c' })];
    assert.deepEqual(kindsOf({ captions, languages: ['en'] }), [['overlapIn', [100, 300]]]);
});

test('a caption without length does not overlap', () => {
    const captions = [caption(0, 900, { en: 'a' }), caption(100, 100, { en: 'b' })];
    assert.deepEqual(kindsOf({ captions, languages: ['en'] }), [['captionWithoutLength', [100]]]);
});

test('a caption that lacks a language is not one without text', () => {
    const captions = [caption(0, 1, { en: 'a', de: ' \n' }), caption(1, 2, { en: '' })];
    assert.deepEqual(kindsOf({ captions }), [['captionWithoutText', [1]], ['captionLacksLanguage', [0]]]);
});

test('a caption lacks only a language that was timed with one that it has', () => {
    const apart = [caption(0, 1, { en: 'a', de: 'b' }), caption(1, 2, { en: 'c' }), caption(2, 3, { ja: 'd' })];
    const parts = { captions: apart, languages: ['en', 'ja', 'de'] };
    assert.deepEqual(kindsOf(parts), [['captionLacksLanguage', [1]]]);
    assert.deepEqual(findProblems(packetWith(parts)).groups, [['name of ja'], ['name of en', 'name of de']]);
});

test('languages with half of their captions in common were timed separately', () => {
    const captions = [complete, { en: 'a' }, { de: 'b' }].map((texts, start) => caption(start, start + 1, texts));
    assert.deepEqual(kindsOf({ captions }), []);
    assert.deepEqual(kindsOf({ captions: [...captions, caption(3, 4, complete)] }).map(([key]) => key),
        ['captionLacksLanguage', 'captionLacksLanguage']);
});

test('a language joins two groups', () => {
    const captions = [{ en: 'a', de: 'b' }, { de: 'c', ja: 'd' }, { en: 'e', de: 'f' }, { de: 'g', ja: 'h' }]
        .map((texts, start) => caption(start, start + 1, texts));
    assert.deepEqual(findProblems(packetWith({ captions, languages: ['en', 'ja', 'de'] })).groups,
        [['name of en', 'name of ja', 'name of de']]);
});

test('a report is read with what it knows of each place', () => {
    const places = [
        { file: 'a.srt', language: 'en', line: 3, start: '00:00:01.000', start_ms: 1000, text: 'x', detail: 'y' },
        { file: 'b.srt' },
    ];
    const { problems, groups } = readReport({ problems: [{ kind: 'overlap', count: 2, places }], timing_groups: [['en'], ['de']] });
    assert.deepEqual(problems, [{ key: 'overlap', places: [
        { time: 1000, language: 'en', text: 'x', file: 'a.srt:3', detail: 'y' },
        { time: undefined, language: '', text: undefined, file: 'b.srt', detail: undefined },
    ] }]);
    assert.deepEqual(groups, [['en'], ['de']]);
});

test('items beyond the end of the video are found', () => {
    assert.deepEqual(kindsOf({
        captions: [caption(0, 1001, complete)],
        entries: [{ start: 1001, end: 1001, text: 'x' }],
        screenTexts: [{ start: 900, end: 1001, text: 'y', entry: 0 }],
    }), [['captionBeyondLength', [0]], ['entryBeyondLength', [1001]], ['screenTextBeyondLength', [900]]]);
});

test('nothing is beyond the end of a video of unknown length', () => {
    assert.deepEqual(kindsOf({ captions: [caption(0, 1001, complete)], length: 0 }), []);
});

test('entries and screen texts without text are found', () => {
    assert.deepEqual(kindsOf({
        entries: [{ start: 3, end: 9, text: ' ' }], screenTexts: [{ start: 4, end: 4, text: '', entry: 0 }],
    }), [['entryWithoutTitle', [3]], ['screenTextWithoutLength', [4]], ['screenTextWithoutText', [4]]]);
});

test('screen texts of entries that do not exist are found', () => {
    const screenTexts = [0, 1, -1].map((entry) => ({ start: 5 + entry, end: 9, text: 'y', entry }));
    assert.deepEqual(kindsOf({ screenTexts, entries: [{ start: 0, end: 9, text: 'x', position: 0 }] }),
        [['screenTextOfUnknownEntry', [6, 4]]]);
    assert.deepEqual(kindsOf({ screenTexts, entries: [{ start: 0, end: 9, text: 'x', position: 1 }] }),
        [['screenTextOfUnknownEntry', [4]]]);
    assert.deepEqual(kindsOf({ screenTexts: screenTexts.slice(0, 1) }), []);
});

test('values that cannot be read are listed with their places', () => {
    const fault = { place: { key: 'faultOfCaption', number: 2 }, property: 'xmpDM:startTime', value: 'soon' };
    assert.deepEqual(findProblems(packetWith({ faults: [fault] })).problems,
        [{ key: 'unreadableValue', places: [{ fault }], language: undefined }]);
});
