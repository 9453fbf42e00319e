import assert from 'node:assert/strict';
import test from 'node:test';
import { formatTime, spokenTime } from '../../modules/times.js';

test('times are written as subtitle files write them', () => {
    assert.equal(formatTime(0), '00:00:00.000');
    assert.equal(formatTime(39200), '00:00:39.200');
    assert.equal(formatTime(3599999), '00:59:59.999');
    assert.equal(formatTime(360000000 + 61001), '100:01:01.001');
    assert.equal(formatTime(-1500), '-00:00:01.500');
});

test('times are said in words, each unit with its plural', () => {
    assert.equal(spokenTime(0), '0 seconds');
    assert.equal(spokenTime(999), '0 seconds');
    assert.equal(spokenTime(1000), '1 second');
    assert.equal(spokenTime(62000), '1 minute 2 seconds');
    assert.equal(spokenTime(7200000), '2 hours');
});
