import assert from 'node:assert/strict';
import test from 'node:test';
import { IntervalIndex, firstAfter, lastBefore, lastStarted } from '../../modules/intervals.js';

const item = (start, end) => ({ start, end });

test('an item shows from its start until just before its end', () => {
    const index = new IntervalIndex([item(100, 200)]);
    assert.deepEqual(index.at(99), []);
    assert.deepEqual(index.at(100), [item(100, 200)]);
    assert.deepEqual(index.at(199), [item(100, 200)]);
    assert.deepEqual(index.at(200), []);
});

test('an item without length never shows', () => {
    assert.deepEqual(new IntervalIndex([item(100, 100)]).at(100), []);
});

test('a long item is found behind short ones, and items keep their order', () => {
    const items = [item(0, 1000), item(10, 20), item(30, 40), item(50, 600)];
    assert.deepEqual(new IntervalIndex(items).at(55), [items[0], items[3]]);
});

test('the index finds what a look at every item finds', () => {
    let seed = 1;
    const random = (limit) => (seed = seed * 16807 % 2147483647) % limit;
    const items = Array.from({ length: 300 }, () => random(1000)).sort((a, b) => a - b)
        .map((start) => item(start, start + random(60)));
    const index = new IntervalIndex(items);
    for (let time = 0; time < 1100; ++time)
        assert.deepEqual(index.at(time), items.filter(({ start, end }) => start <= time && time < end));
});

test('neighbours of a time are found', () => {
    const items = [item(10, 20), item(10, 20), item(30, 40)];
    assert.equal(lastStarted(items, 9), -1);
    assert.equal(lastStarted(items, 10), 1);
    assert.equal(lastBefore(items, 10), -1);
    assert.equal(lastBefore(items, 30), 1);
    assert.equal(firstAfter(items, 10), 2);
    assert.equal(firstAfter(items, 30), 3);
});
