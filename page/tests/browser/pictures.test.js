// Compares the page with the pictures in docs/pictures, loosely: fonts and browsers differ. To draw them
// again, set DRAW_PICTURES to anything.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import test from 'node:test';
import { openPage, publishSample, root } from './support.js';

const sample = publishSample();

async function prepare(page, tab) {
    await page.getByRole('button', { name: 'Next caption' }).click();
    await page.locator('#second-language').selectOption('ja');
    await page.getByRole('button', { name: 'Next caption' }).click();
    await page.getByRole('tab', { name: tab }).click();
}

const pictures = [
    ['preview-light', { colorScheme: 'light' }, (page) => prepare(page, 'Transcript')],
    ['preview-dark', { colorScheme: 'dark' }, async (page) => {
        await prepare(page, 'Transcript');
        await page.locator('#search').fill('fold');
        await page.keyboard.press('Enter');
    }],
    ['preview-narrow', { colorScheme: 'light', viewport: { width: 320, height: 1400 } }, (page) => prepare(page, 'Problems')],
];

// The mean difference of the pictures, as 16 × 16 squares, in each colour: 0 to 255.
function difference(page, before, after) {
    return page.evaluate(async (sources) => {
        const squares = await Promise.all(sources.map(async (source) => {
            const bytes = Uint8Array.from(atob(source), (character) => character.charCodeAt(0));
            const bitmap = await createImageBitmap(new Blob([bytes]));
            const context = new OffscreenCanvas(16, 16).getContext('2d');
            context.imageSmoothingQuality = 'high';
            context.drawImage(bitmap, 0, 0, 16, 16);
            return [bitmap.width, bitmap.height, ...context.getImageData(0, 0, 16, 16).data];
        }));
        const [first, second] = squares;
        if (first[0] !== second[0] || first[1] !== second[1]) return 255;
        return first.reduce((sum, value, index) => sum + Math.abs(value - second[index]), 0) / first.length;
    }, [before, after].map((picture) => picture.toString('base64')));
}

for (const [name, options, act] of pictures) {
    test(`the page looks like ${name}.png`, async () => {
        const page = await openPage(sample, options);
        await act(page);
        // Without the focus ring and pointer of the test.
        await page.evaluate(() => document.activeElement.blur());
        await page.mouse.move(0, 0);
        const picture = await page.screenshot({ animations: 'disabled' });
        const file = join(root, 'docs/pictures', `${name}.png`);
        if (process.env.DRAW_PICTURES) writeFileSync(file, picture);
        const found = await difference(page, readFileSync(file), picture);
        assert.ok(found < 6, `the mean difference is ${found}`);
        await page.getByRole('tab', { name: 'Details' }).click();
        assert.ok(await difference(page, picture, await page.screenshot()) > 0.5, 'the comparison sees a change');
    });
}
