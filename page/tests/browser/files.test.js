// What the page does with the files that a person opens.
import assert from 'node:assert/strict';
import test from 'node:test';
import { hasVideo, makeFilm } from './film.js';
import { golden, makeImage, openPage, packetFile, pickFiles, publishSample, until } from './support.js';

const sample = publishSample();
const subtitles = packetFile('1\n00:00:00,000 --> 00:00:01,000\nHi\n', 'film.en.srt');
const messageOf = (page) => page.locator('#error-text').textContent();
const statusOf = (page) => page.locator('#status').textContent();
const focusOf = (page) => page.evaluate(() => document.activeElement.id);

test('of several files the first packet opens, and a message names those that are not used', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, subtitles, packetFile(golden, 'film.xmp'), await makeFilm(), packetFile(sample, 'other.xmp'),
        await makeFilm('second.webm'));
    await until(page, hasVideo);
    assert.equal(await page.locator('#title').textContent(), 'Tea & "Time"');
    assert.equal(await messageOf(page), 'Not used: film.en.srt, other.xmp, second.webm.');
    assert.equal(await statusOf(page), 'Opened the video film 1.webm.');
});

test('without a packet among several files, the message is about the one with its name', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, subtitles, packetFile('', 'film.xmp'));
    await until(page, () => document.getElementById('error-text').textContent !== '');
    assert.equal(await messageOf(page), 'This is not a packet: it is empty.\nNot used: film.en.srt.');
    assert.equal(await statusOf(page), '');
});

test('only a packet that opened is announced as such', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, packetFile('<x', 'bad.xmp'));
    await until(page, () => document.getElementById('error-text').textContent !== '');
    assert.equal(await statusOf(page), '');
    await pickFiles(page, packetFile(golden, 'good.xmp'), await makeImage(page, 'a.png', '#f00'));
    await until(page, () => document.getElementById('status').textContent !== '');
    assert.equal(await statusOf(page), 'Opened the packet good.xmp. Opened an image.');
});

test('an opened image is found whichever folder the packet names', async () => {
    const page = await openPage(golden.replaceAll('"shots.png"', '"thumbs/b.png"'));
    await page.getByRole('tab', { name: 'Screen text' }).click();
    await pickFiles(page, await makeImage(page, 'b.png', '#f00'));
    await until(page, () => document.querySelectorAll('#panel-screen-texts img[src^=blob]').length === 2);
});

test('an image that is opened again replaces the first one, whose memory is freed', async () => {
    const page = await openPage(golden);
    await page.getByRole('tab', { name: 'Screen text' }).click();
    const open = async (colour) => {
        await pickFiles(page, await makeImage(page, 'shots.png', colour));
        await until(page, (old) => (document.querySelector('#panel-screen-texts img')?.src ?? old) !== old, address);
        return page.locator('#panel-screen-texts img').first().getAttribute('src');
    };
    let address = '';
    await until(page, () => document.querySelectorAll('#panel-screen-texts img').length === 0);
    address = await open('#f00');
    assert.match(await open('#00f'), /^blob:/);
    assert.equal(await page.evaluate((old) => new Promise((resolve) => {
        const image = new Image();
        image.addEventListener('load', () => resolve('loaded'));
        image.addEventListener('error', () => resolve('freed'));
        image.src = old;
    }), address), 'freed');
});

test('the focus never falls to the page', async () => {
    const page = await openPage(undefined);
    await pickFiles(page, packetFile('<x'));
    await until(page, () => document.getElementById('error-text').textContent !== '');
    await page.getByRole('button', { name: 'Dismiss' }).click();
    assert.equal(await focusOf(page), 'open');
    await page.locator('#welcome-open').focus();
    await pickFiles(page, packetFile(golden));
    await until(page, () => document.getElementById('welcome').hidden);
    assert.equal(await focusOf(page), 'play');
});

test('text can be dragged into the search', async () => {
    const page = await openPage(golden);
    const isLeft = (type) => page.evaluate((name) => {
        const dataTransfer = new DataTransfer();
        dataTransfer.setData('text/plain', 'tea');
        return document.getElementById('search').dispatchEvent(
            new DragEvent(name, { dataTransfer, bubbles: true, cancelable: true }));
    }, type);
    assert.equal(await isLeft('dragover'), true);
    assert.equal(await page.locator('#drop-note').isVisible(), false);
    assert.equal(await isLeft('drop'), true);
});
