// The page with a video, which the browser records itself: two seconds, red and then blue.
import assert from 'node:assert/strict';
import test from 'node:test';
import { openPage, packetFile, pickFiles, publishCues, shownCaptions, until } from './support.js';

const captions = {
    en: [[100, 640, 'one'], [640, 1201, 'two'], [900, 1000, 'short'], [1500, 1900, 'last']],
    de: [[100, 640, 'eins'], [1150, 1550, 'zwei']],
};
const packet = publishCues({ captions, contents: [[0, 1200, 'Red'], [1200, 2000, 'Blue']] },
    '--length', '2000', '--content', 'missing.mp4', '--content', 'films/film 1.webm');

let recorded;
async function film() {
    recorded ??= await recordFilm();
    return { name: 'film 1.webm', mimeType: 'video/webm', buffer: recorded };
}

async function recordFilm() {
    const page = await openPage(undefined);
    const base64 = await page.evaluate(() => new Promise((resolve) => {
        const canvas = document.createElement('canvas');
        canvas.width = 320;
        canvas.height = 180;
        const context = canvas.getContext('2d');
        const recorder = new MediaRecorder(canvas.captureStream(25), { mimeType: 'video/webm;codecs=vp8' });
        const parts = [];
        const begin = performance.now();
        const timer = setInterval(() => {
            const time = performance.now() - begin;
            context.fillStyle = time < 1000 ? '#f00' : '#00f';
            context.fillRect(0, 0, 320, 180);
            context.fillStyle = '#fff';
            context.fillRect(time / 10, 80, 20, 20);
            if (time > 2600) recorder.stop();
        }, 40);
        recorder.addEventListener('dataavailable', ({ data }) => parts.push(data));
        recorder.addEventListener('stop', () => {
            clearInterval(timer);
            const reader = new FileReader();
            reader.addEventListener('load', () => resolve(reader.result.split(',')[1]));
            reader.readAsDataURL(new Blob(parts));
        });
        recorder.start();
    }));
    return Buffer.from(base64, 'base64');
}

function seekVideo(page, milliseconds) {
    return page.evaluate((time) => new Promise((resolve) => {
        const video = document.getElementById('video');
        video.addEventListener('seeked', () => requestAnimationFrame(resolve), { once: true });
        video.currentTime = time / 1000;
    }), milliseconds);
}

const hasVideo = () => document.getElementById('stage').classList.contains('has-video')
    && document.getElementById('video').readyState >= HTMLMediaElement.HAVE_CURRENT_DATA;

test('each caption shows over the video from its start until just before its end', async () => {
    const page = await openPage(packet);
    await pickFiles(page, await film());
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
    const page = await openPage(packet, { files: { 'films/film 1.webm': (await film()).buffer } });
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
    await pickFiles(page, await film());
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
    await pickFiles(page, await film());
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
    await pickFiles(page, await film(), packetFile(packet));
    await until(page, hasVideo);
    assert.equal(await page.locator('#title').textContent(), 'Untitled video');
});
