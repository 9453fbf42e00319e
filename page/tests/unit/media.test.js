import assert from 'node:assert/strict';
import test from 'node:test';
import { Player, StageClock } from '../../modules/media.js';

// Runs the test with a time that moves when it is told.
function withTime(run) {
    return (context) => {
        let now = 0;
        context.mock.method(performance, 'now', () => now);
        context.mock.method(globalThis, 'setTimeout', () => 0);
        globalThis.requestAnimationFrame = () => 0;
        run((milliseconds) => { now += milliseconds; });
    };
}

test('the clock runs only while it plays, at its speed', withTime((pass) => {
    const clock = new StageClock(100);
    pass(1000);
    assert.equal(clock.currentTime, 0);
    clock.play();
    pass(1000);
    clock.playbackRate = 2;
    pass(1000);
    assert.equal(clock.currentTime, 3);
    clock.pause();
    pass(1000);
    assert.equal(clock.currentTime, 3);
}));

test('the clock stays between start and end, and plays from the start after the end', withTime((pass) => {
    const clock = new StageClock(5);
    clock.currentTime = -1;
    assert.equal(clock.currentTime, 0);
    clock.play();
    pass(9000);
    assert.equal(clock.currentTime, 5);
    clock.pause();
    clock.play();
    assert.equal(clock.currentTime, 0);
}));

test('the player rounds to milliseconds and tells every jump', withTime(() => {
    const player = new Player(new StageClock(10), 10000);
    const times = [];
    player.addEventListener('time', () => times.push(player.time));
    player.seek(3200);
    player.seek(20000);
    assert.ok(times.includes(3200));
    assert.equal(player.time, 10000);
}));

test('other media go on at the same time and speed, and the old ones fall silent', withTime(() => {
    const first = new StageClock(10);
    const second = new StageClock(10);
    const player = new Player(first, 10000);
    player.seek(4000);
    player.rate = 1.5;
    player.toggle();
    player.use(second);
    assert.equal(first.paused, true);
    assert.equal(player.time, 4000);
    assert.equal(player.rate, 1.5);
    let told = 0;
    player.addEventListener('time', () => ++told);
    first.currentTime = 1;
    assert.equal(told, 0);
}));
