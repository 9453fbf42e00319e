// The page with a video.
import assert from 'node:assert/strict';
import test from 'node:test';
import { hasVideo, makeFilm } from './film.js';
import { golden, openPage, packetFile, pickFiles, publishCues, shownCaptions, until } from './support.js';

const captions = {
    en: [[100, 640, 'one'], [640, 1201, 'two'], [900, 1000, 'short'], [1500, 1900, 'last']],
    de: [[100, 640, 'eins'], [1150, 1550, 'zwei']],
};
const packet = publishCues({ captions, contents: [[0, 1200, 'Red'], [1200, 2000, 'Blue']] },
    '--length', '2000', '--content', 'missing.mp4', '--content', 'films/film 1.webm');

function seekVideo(page, milliseconds) {
    return page.evaluate((time) => new Promise((resolve) => {
        const video = document.getElementById('video');
        video.addEventListener('seeked', () => requestAnimationFrame(resolve), { once: true });
        video.currentTime = time / 1000;
    }), milliseconds);
}

test('each caption shows over the video from its start until just before its end', async () => {
    const page = await openPage(packet);
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    assert.equal(await page.locator('#status').textContent(), 'Opened the video film 1.webm.');
    await page.locator('#first-language').selectOption('en');
    await page.locator('#second-language').selectOption('de');
    const probes = new Set(Object.values(captions).flat().flatMap(([start, end]) => [start - 1, start, end - 1, end]));
    for (const time of probes) {
        await seekVideo(page, time);
        const expected = Object.entries(captions).flatMap(([language, cues]) => cues
            .filter(([start, end]) => start <= time && time < end)
            .map(([, , text]) => [language, text]));
        assert.deepEqual(await shownCaptions(page), expected, `at ${time}`);
    }
});

test('a content file beside the page is its video, and gives the thumbnails', async () => {
    const page = await openPage(packet, { files: { 'films/film 1.webm': (await makeFilm()).buffer } });
    await until(page, hasVideo);
    assert.equal(await page.locator('#stage-note').isVisible(), false);
    await page.getByRole('tab', { name: 'Contents' }).click();
    await until(page, () => document.querySelectorAll('#panel-contents canvas').length === 2);
    const colours = await page.locator('#panel-contents canvas').evaluateAll((canvases) => canvases.map((canvas) => {
        const copy = new OffscreenCanvas(1, 1).getContext('2d');
        copy.drawImage(canvas, 0, 0, 1, 1);
        try {
            const [red, , blue] = copy.getImageData(0, 0, 1, 1).data;
            return red > blue ? 'red' : 'blue';
        } catch {
            return 'unreadable';
        }
    }));
    // The browser does not tell pages the pixels of local files; the next test sees those of an opened one.
    assert.deepEqual(colours, ['unreadable', 'unreadable']);
    assert.deepEqual(page.errors, []);
});

test('frames of an opened video are the thumbnails of entries whose image is missing', async () => {
    const page = await openPage(packet.replaceAll('zelDM:image=""', 'zelDM:image="missing.png"'));
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    await page.getByRole('tab', { name: 'Contents' }).click();
    await until(page, () => document.querySelectorAll('#panel-contents canvas').length === 2);
    const colours = await page.locator('#panel-contents canvas').evaluateAll((canvases) => canvases.map((canvas) => {
        const [red, , blue] = canvas.getContext('2d').getImageData(5, 5, 1, 1).data;
        return red > blue ? 'red' : 'blue';
    }));
    assert.deepEqual(colours, ['red', 'blue']);
    assert.equal(await page.locator('#panel-contents img').count(), 0);
});

test('the controls of the page play, mute and speed up the video', async () => {
    const page = await openPage(packet);
    assert.equal(await page.getByRole('button', { name: 'Mute' }).isVisible(), false);
    await page.getByRole('slider').press('ArrowRight');
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    const state = () => page.evaluate(() => {
        const { paused, muted, playbackRate, currentTime } = document.getElementById('video');
        return { paused, muted, playbackRate, currentTime };
    });
    // The video goes on where the clock was.
    assert.deepEqual(await state(), { paused: true, muted: false, playbackRate: 1, currentTime: 1 });
    await page.getByRole('button', { name: 'Mute' }).click();
    assert.equal(await page.getByRole('button', { name: 'Mute' }).getAttribute('aria-pressed'), 'true');
    await page.locator('#speed').selectOption('0.5');
    await page.getByRole('button', { name: 'Play' }).click();
    await until(page, () => !document.getElementById('video').paused);
    const { muted, playbackRate } = await state();
    assert.deepEqual({ muted, playbackRate }, { muted: true, playbackRate: 0.5 });
});

test('a video that the browser cannot play gets a message, and the clock stays', async () => {
    const page = await openPage(packet);
    await pickFiles(page, { name: 'broken.mp4', mimeType: 'video/mp4', buffer: Buffer.from('no video') });
    await until(page, () => document.getElementById('error-text').textContent === 'The browser cannot play broken.mp4.');
    assert.equal(await page.locator('#stage-note').isVisible(), true);
    await page.getByRole('slider').press('ArrowRight');
    assert.equal(await page.locator('#time').innerText(), '00:00:01.000');
});

test('a packet and its video can be opened together', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, await makeFilm(), packetFile(packet));
    await until(page, hasVideo);
    assert.equal(await page.locator('#title').textContent(), 'Untitled video');
});

const shortPacket = publishCues({ captions: { en: [[0, 1000, 'first'], [30000, 31000, 'late']] } });
const addressOfVideo = (page) => page.evaluate(() => document.getElementById('video').src);

test('the video that the user chose stays for every packet, until another one plays', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, await makeFilm('mine.webm'));
    await until(page, () => document.getElementById('status').textContent === 'Opened the video mine.webm.');
    const mine = await addressOfVideo(page);
    assert.match(mine, /^blob:/);
    for (const [text, title] of [[golden, 'Tea & "Time"'], [packet, 'Untitled video']]) {
        await pickFiles(page, packetFile(text));
        await until(page, (expected) => document.getElementById('title').textContent === expected, title);
        await until(page, hasVideo);
        assert.equal(await addressOfVideo(page), mine);
    }
    await pickFiles(page, { name: 'broken.mp4', mimeType: 'video/mp4', buffer: Buffer.from('no video') });
    await until(page, () => document.getElementById('error-text').textContent === 'The browser cannot play broken.mp4.');
    assert.equal(await addressOfVideo(page), mine);
    await pickFiles(page, await makeFilm('other.webm'));
    await until(page, () => document.getElementById('status').textContent === 'Opened the video other.webm.');
    assert.notEqual(await addressOfVideo(page), mine);
    // The address of the first one is free.
    assert.equal(await page.evaluate((address) => fetch(address).then(() => true, () => false), mine), false);
    assert.equal(await page.evaluate(() => document.getElementById('video').error), null);
});

test('a content file beside the page does not replace the video that the user chose', async () => {
    const { buffer } = await makeFilm();
    const page = await openPage(undefined, { files: { 'films/film 1.webm': buffer } });
    await pickFiles(page, packetFile(packet), await makeFilm('mine.webm'));
    await until(page, hasVideo);
    await page.waitForTimeout(500);
    assert.match(await addressOfVideo(page), /^blob:/);
    assert.equal(await page.locator('#status').textContent(), 'Opened the video mine.webm.');
});

test('if the chosen video fails, that of the packet shows', async () => {
    const { buffer } = await makeFilm();
    const page = await openPage(undefined, { files: { 'films/film 1.webm': buffer } });
    await pickFiles(page, packetFile(packet), { name: 'broken.mp4', mimeType: 'video/mp4', buffer: Buffer.from('no video') });
    await until(page, hasVideo);
    assert.equal(await page.locator('#error-text').textContent(), 'The browser cannot play broken.mp4.');
    assert.match(await addressOfVideo(page), /films\/film%201\.webm$/);
});

test('the timeline covers a video that is longer than the packet', async () => {
    const page = await openPage(packet);
    const lane = () => page.locator('.lane-captions path').first().getAttribute('d');
    const before = await lane();
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    const duration = await page.locator('#duration').innerText();
    assert.ok(duration > '00:00:02.300' && duration < '00:00:04.000', duration);
    assert.notEqual(await lane(), before);
    await page.getByRole('slider').press('End');
    assert.equal(await page.locator('#time').innerText(), duration);
    assert.equal(await page.locator('#stage-note').isVisible(), false);
    await page.getByRole('slider').press('Home');
    await page.locator('#speed').selectOption('2');
    await page.getByRole('button', { name: 'Play' }).click();
    await until(page, () => document.getElementById('video').ended);
    assert.equal(await page.locator('#time').innerText(), duration);
});

test('after the end of a shorter video, the clock shows the captions', async () => {
    const page = await openPage(shortPacket);
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    await page.getByRole('button', { name: 'Next caption' }).click();
    assert.equal(await page.locator('#time').innerText(), '00:00:30.000');
    assert.deepEqual(await shownCaptions(page), [['en', 'late']]);
    assert.equal(await page.locator('#stage-note').isVisible(), true);
    await page.getByRole('button', { name: 'Play' }).click();
    await until(page, () => document.getElementById('time').textContent > '00:00:30.100');
    await page.getByRole('slider').press('Home');
    await until(page, hasVideo);
    assert.equal(await page.locator('#stage-note').isVisible(), false);
    await until(page, () => !document.getElementById('video').paused);
    // The clock takes over while it plays.
    await until(page, () => !document.getElementById('stage').classList.contains('has-video'));
    const [, seconds] = (await page.locator('#time').innerText()).split('00:00:');
    assert.ok(seconds > 2 && seconds < 5, seconds);
    assert.deepEqual(page.errors, []);
});

test('a video that loads leaves the focus and the place of a list', async () => {
    const page = await openPage(publishCues({
        captions: { en: [[0, 1000, 'a']] }, contents: Array.from({ length: 60 }, (_, index) => [index * 100, index * 100 + 100, `entry ${index}`]),
    }));
    await page.getByRole('tab', { name: 'Contents' }).click();
    await page.locator('#contents-rows .row').first().focus();
    await page.keyboard.press('End');
    const state = () => page.evaluate(() =>
        [document.activeElement.textContent, document.getElementById('contents-rows').scrollTop > 0]);
    const before = await state();
    assert.deepEqual(before, ['00:00:05.900entry 59', true]);
    await pickFiles(page, await makeFilm());
    await until(page, hasVideo);
    assert.deepEqual(await state(), before);
    await until(page, () => document.activeElement.querySelector('.thumbnail') !== null);
});
