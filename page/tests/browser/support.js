// Opens the built page in a browser, from a folder of its own, as a person would from a disk.
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { dirname, join } from 'node:path';
import { after, before } from 'node:test';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

export const root = fileURLToPath(new URL('../../../', import.meta.url));
export const golden = readFileSync(join(root, 'tests/core/data/header-captions-toc-screentext.xmp'), 'utf8');

// CTest sets these; the defaults are those of the preset dev on Debian.
const {
    CHROMIUM: executablePath = '/usr/bin/chromium',
    PAGE: builtPage = join(root, 'build/dev/page/preview.html'),
    PUBLISH_VIDEO: publishVideo = join(root, 'build/dev/examples/publish_video/publish_video'),
} = process.env;

const scratch = mkdtempSync(join(tmpdir(), 'page-'));
let browser;

before(async () => {
    // The sandbox of the browser does not work for root.
    browser = await chromium.launch({ executablePath, chromiumSandbox: process.getuid() !== 0 });
});
after(async () => {
    await browser?.close();
    rmSync(scratch, { recursive: true, force: true });
});

let packets = 0;
const previews = new Map();

/** Publishes with the example; returns the packet. */
export function publish(...options) {
    const file = join(scratch, `${++packets}.xmp`);
    execFileSync(publishVideo, ['-o', file, '--preview', `${file}.html`, '--size', '1280x720', ...options], { stdio: 'pipe' });
    const packet = readFileSync(file, 'utf8');
    previews.set(packet, readFileSync(`${file}.html`, 'utf8'));
    return packet;
}

/** Publishes captions by language, entries and screen texts, each a list of [start, end, text] in milliseconds. */
export function publishCues({ captions, contents, screenTexts }, ...options) {
    const clock = (time) => new Date(time).toISOString().slice(11, 23).replace('.', ',');
    const write = (cues) => {
        const file = join(scratch, `${++packets}.srt`);
        writeFileSync(file, cues.map(([start, end, text], index) =>
            `${index + 1}\n${clock(start)} --> ${clock(end)}\n${text}\n`).join('\n'));
        return file;
    };
    return publish(...options,
        ...contents ? ['--toc', `en=${write(contents)}`] : [],
        ...screenTexts ? ['--screen-text', write(screenTexts)] : [],
        ...Object.entries(captions).map(([language, cues]) => `${language}=${write(cues)}`));
}

/** The packet of the sample in examples/data. */
export function publishSample() {
    const sample = join(root, 'examples/data/paper-boat');
    return publish('--title', 'The Paper Boat', '--creator', 'Ann & Bo', '--keyword', 'boat',
        '--description', 'A boat, a river and a bridge', '--app-name', 'publish_video', '--app-version', '1.0',
        '--content', 'paper-boat.webm', '--plain-text', '--skip-empty',
        '--toc', `en=${sample}.chapters.en.vtt`, '--screen-text', `${sample}.screen.srt`,
        `en=${sample}.en.srt`, `de=${sample}.de.srt`, `ja=${sample}.ja.vtt`, `ar=${sample}.ar.vtt`);
}

// The built page with the packet, and with the report if publish() wrote one, both taken from its preview.
function pageWith(packet) {
    const preview = previews.get(packet) ?? `id="packet">${Buffer.from(packet).toString('base64')}<`;
    return ['packet', 'report'].reduce((page, id) => {
        const [, content = ''] = new RegExp(`id="${id}">([^<]*)<`).exec(preview) ?? [];
        return page.replace(`id="${id}">`, `$&${content}`);
    }, readFileSync(builtPage, 'utf8'));
}

/**
 * Opens the page with the packet in it (without one if it is undefined) and the files beside it; `written` opens
 * the preview that publish() wrote as it is. Returns the browser's page; `errors` of it collects exceptions and
 * complaints of the console.
 */
export async function openPage(packet = '', { files = {}, written = false, ...options } = {}) {
    const folder = mkdtempSync(join(scratch, 'open-'));
    writeFileSync(join(folder, 'preview.html'), written ? previews.get(packet) : pageWith(packet));
    for (const [name, content] of Object.entries(files)) {
        mkdirSync(dirname(join(folder, name)), { recursive: true });
        writeFileSync(join(folder, name), content);
    }
    const context = await browser.newContext({ viewport: { width: 1280, height: 800 }, ...options });
    const page = await context.newPage();
    page.errors = [];
    page.requests = [];
    page.on('pageerror', (error) => page.errors.push(String(error)));
    page.on('console', (message) => {
        // Files that a packet names need not be there.
        if (message.type() === 'error' && !message.text().includes('ERR_FILE_NOT_FOUND')) page.errors.push(message.text());
    });
    page.on('dialog', (dialog) => {
        page.errors.push(`dialog: ${dialog.message()}`);
        dialog.dismiss();
    });
    // With a listener, the browser never opens a dialog of the system, however soon a test presses the button.
    page.on('filechooser', () => {});
    page.on('request', (request) => page.requests.push(request.url()));
    page.folder = pathToFileURL(folder).href;
    await page.goto(`${page.folder}/preview.html`);
    return page;
}

/** Opens files in the page with its file picker. Files are {name, mimeType, buffer}. */
export function pickFiles(page, ...files) {
    return page.locator('#files').setInputFiles(files);
}

export function packetFile(text, name = 'test.xmp') {
    return { name, mimeType: '', buffer: Buffer.from(text) };
}

/** Jumps to the hit of a search, with the keyboard. */
export async function jumpToHit(page, query) {
    await page.locator('#search').fill(query);
    await page.keyboard.press('Enter');
    await page.keyboard.press('Enter');
}

/** The captions that show, each with its language. */
export function shownCaptions(page) {
    return page.locator('.caption').evaluateAll((captions) =>
        captions.map(({ lang, textContent }) => [lang, textContent]));
}

/** Waits until the condition, evaluated in the page, holds. */
export function until(page, condition, argument) {
    return page.waitForFunction(condition, argument, { timeout: 20000, polling: 50 });
}

/** Makes an image file of one colour. */
export async function makeImage(page, name, colour) {
    const base64 = await page.evaluate((fill) => {
        const canvas = document.createElement('canvas');
        canvas.width = 32;
        canvas.height = 18;
        const context = canvas.getContext('2d');
        context.fillStyle = fill;
        context.fillRect(0, 0, 32, 18);
        return canvas.toDataURL('image/png').split(',')[1];
    }, colour);
    return { name, mimeType: 'image/png', buffer: Buffer.from(base64, 'base64') };
}
