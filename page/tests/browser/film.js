// A video that the browser records itself: red, and after a second blue.
import { openPage } from './support.js';

const recorded = new Map();

/** Returns a video file of about so many milliseconds. */
export async function makeFilm(name = 'film 1.webm', length = 2600) {
    if (!recorded.has(length)) recorded.set(length, await record(length));
    return { name, mimeType: 'video/webm', buffer: recorded.get(length) };
}

async function record(length) {
    const page = await openPage(undefined);
    const base64 = await page.evaluate((end) => new Promise((resolve) => {
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
            if (time > end) recorder.stop();
        }, 40);
        recorder.addEventListener('dataavailable', ({ data }) => parts.push(data));
        recorder.addEventListener('stop', () => {
            clearInterval(timer);
            const reader = new FileReader();
            reader.addEventListener('load', () => resolve(reader.result.split(',')[1]));
            reader.readAsDataURL(new Blob(parts));
        });
        recorder.start();
    }), length);
    return Buffer.from(base64, 'base64');
}

/** A condition for until(): the stage shows a video. */
export const hasVideo = () => document.getElementById('stage').classList.contains('has-video')
    && document.getElementById('video').readyState >= HTMLMediaElement.HAVE_CURRENT_DATA;
