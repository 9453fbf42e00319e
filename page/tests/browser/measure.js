// Prints how fast the page is with a long packet: node measure.js, with the environment of the tests.
import test from 'node:test';
import { publishLarge } from './large.js';
import { openPage, until } from './support.js';

const packet = publishLarge();

function print(what, milliseconds) {
    console.log(`${what}: ${milliseconds.map((time) => time.toFixed(0)).join(', ')} ms`);
}

test('first view, search and scroll', async () => {
    const views = [];
    const queries = [];
    let frames = [];
    for (let run = 0; run < 3; ++run) {
        const page = await openPage(packet);
        await until(page, () => performance.getEntriesByType('paint').length > 0);
        views.push(await page.evaluate(() => Math.max(
            ...performance.getEntriesByType('paint').map(({ startTime }) => startTime),
            performance.getEntriesByType('navigation')[0].domContentLoadedEventEnd)));
        for (const query of ['river', '\u7d19', 'hafen 9', 'zzz']) {
            await page.locator('#search').fill('');
            queries.push(await page.evaluate((text) => {
                const input = document.getElementById('search');
                input.value = text;
                const begin = performance.now();
                input.dispatchEvent(new Event('input'));
                document.body.getBoundingClientRect();
                return performance.now() - begin;
            }, query));
        }
        await page.getByRole('tab', { name: 'Transcript' }).click();
        frames = await page.locator('#transcript-rows').evaluate(async (list) => {
            const times = [];
            for (let step = 0; step < 120; ++step) {
                const begin = performance.now();
                list.scrollTop += 150;
                list.dispatchEvent(new Event('scroll'));
                list.getBoundingClientRect();
                times.push(performance.now() - begin);
                await new Promise(requestAnimationFrame);
            }
            return times.sort((a, b) => a - b);
        });
        await page.context().close();
    }
    print(`Packet of ${(packet.length / 1e6).toFixed(1)} million characters, first view`, views);
    print('Search (the first of four includes the index, if the page had no idle moment)', queries);
    print('Work for a frame of scrolling: median, 95 %, longest', [0.5, 0.95, 1].map((part) =>
        frames[Math.ceil(part * frames.length) - 1]));
});
