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

function playerOf(packetLength) {
    const player = new Player();
    player.packetLength = packetLength;
    return player;
}

test('the player rounds to milliseconds and tells every jump', withTime(() => {
    const player = playerOf(10000);
    const times = [];
    player.addEventListener('time', () => times.push(player.time));
    player.seek(3200);
    player.seek(20000);
    assert.ok(times.includes(3200));
    assert.equal(player.time, 10000);
}));

test('another video goes on at the same time and speed, and the old one falls silent', withTime(() => {
    const first = new StageClock(10);
    const second = new StageClock(10);
    const player = playerOf(10000);
    player.use(first, 10);
    player.seek(4000);
    player.rate = 1.5;
    player.toggle();
    player.use(second, 10);
    assert.equal(first.paused, true);
    assert.equal(second.paused, false);
    assert.equal(player.time, 4000);
    assert.equal(player.rate, 1.5);
    let told = 0;
    player.addEventListener('time', () => ++told);
    first.currentTime = 1;
    assert.equal(told, 0);
}));

test('the player covers the longer of packet and video', withTime(() => {
    const player = playerOf(2000);
    const video = new StageClock(4.0004);
    player.use(video, 4.0004);
    assert.equal(player.duration, 4000);
    player.seek(9000);
    assert.equal(player.isInVideo, true);
    assert.equal(video.currentTime, 4);
    video.currentTime = 4.0004;
    assert.equal(player.time, 4000);
    player.use(undefined);
    assert.equal(player.duration, 2000);
    assert.equal(player.time, 2000);
}));

test('a jump to a time after the end of the video is one of the clock, and back', withTime((pass) => {
    const player = playerOf(30000);
    const video = new StageClock(4);
    player.use(video, 4);
    player.toggle();
    player.seek(20000);
    assert.deepEqual([player.time, player.isInVideo, player.isPlaying, video.paused], [20000, false, true, true]);
    pass(500);
    assert.equal(player.time, 20500);
    player.seek(3999);
    assert.deepEqual([player.time, player.isInVideo, player.isPlaying], [3999, true, true]);
    player.seek(4000);
    assert.deepEqual([player.time, player.isInVideo, player.isPlaying], [4000, false, true]);
}));

test('the clock goes on when a shorter video ends', withTime((pass) => {
    const player = playerOf(30000);
    const video = new StageClock(4);
    player.use(video, 4);
    player.rate = 2;
    video.dispatchEvent(new Event('ended'));
    pass(1000);
    assert.deepEqual([player.time, player.isInVideo, player.isPlaying], [6000, false, true]);
}));

test('a longer video just ends, and plays from the start again', withTime(() => {
    const player = playerOf(2000);
    const video = new StageClock(4);
    player.use(video, 4);
    player.seek(4000);
    video.dispatchEvent(new Event('ended'));
    assert.deepEqual([player.isInVideo, player.isPlaying], [true, false]);
    player.toggle();
    assert.deepEqual([player.time, player.isPlaying], [0, true]);
}));

test('after the clock, the player begins with the video again', withTime(() => {
    const player = playerOf(30000);
    player.use(new StageClock(4), 4);
    player.seek(30000);
    player.toggle();
    assert.deepEqual([player.time, player.isInVideo], [0, true]);
}));

test('a video of unknown length has every time', withTime(() => {
    const player = playerOf(30000);
    const video = new StageClock(100);
    player.use(video, Infinity);
    player.seek(29000);
    assert.deepEqual([player.time, player.isInVideo, player.duration], [29000, true, 30000]);
}));
