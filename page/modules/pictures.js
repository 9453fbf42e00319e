import { element } from './dom.js';
import { addressBeside } from './files.js';

const width = 160;
const keptFrames = 200;

/** Finds the thumbnails of items: the named file, if the browser can show it, else a frame of the video. */
export class Pictures {
    #files = new Map();
    #failed = new Set();
    #frames = new Map();
    #queue = [];
    #grabber;
    #isGrabbing = false;

    /** Uses a file that the user opened for the items that name it, in whatever folder. */
    addFile(file) {
        URL.revokeObjectURL(this.#files.get(file.name));
        this.#files.set(file.name, URL.createObjectURL(file));
    }

    /** Takes frames from the video at the address; undefined for none. */
    useVideo(address) {
        this.#frames.clear();
        this.#queue = [];
        this.#isGrabbing = false;
        this.#grabber?.removeAttribute('src');
        this.#grabber?.load();
        this.#grabber = undefined;
        if (address === undefined) return;
        const grabber = element('video', { preload: 'auto' });
        grabber.muted = true;
        grabber.addEventListener('seeked', () => this.#keepFrame(grabber));
        grabber.addEventListener('loadeddata', () => this.#grabNext());
        grabber.src = address;
        this.#grabber = grabber;
    }

    /** Makes the thumbnail of an image file and a time; '' if there is neither a name nor a video. */
    make(name, time) {
        if (name === '' && !this.#grabber) return '';
        const box = element('span', { class: 'thumbnail' });
        const address = this.#files.get(name.split('/').pop()) ?? (this.#failed.has(name) ? undefined : addressBeside(name));
        if (address === undefined) {
            this.#showFrame(box, time);
            return box;
        }
        const image = element('img', { alt: '', src: address });
        image.addEventListener('error', () => {
            this.#failed.add(name);
            image.remove();
            this.#showFrame(box, time);
        });
        box.append(image);
        return box;
    }

    #showFrame(box, time) {
        const frame = this.#frames.get(time);
        if (frame) {
            const copy = element('canvas', { width: frame.width, height: frame.height });
            copy.getContext('2d').drawImage(frame, 0, 0);
            box.replaceChildren(copy);
        } else if (this.#grabber) {
            this.#queue.push({ box, time });
            // Later, when the box is in the document.
            queueMicrotask(() => this.#grabNext());
        }
    }

    #grabNext() {
        if (this.#isGrabbing || !(this.#grabber?.readyState >= HTMLMediaElement.HAVE_CURRENT_DATA)) return;
        // Without the boxes that were scrolled away.
        this.#queue = this.#queue.filter(({ box }) => box.isConnected);
        if (this.#queue.length === 0) return;
        this.#isGrabbing = true;
        this.#grabber.currentTime = this.#queue[0].time / 1000;
    }

    #keepFrame(grabber) {
        if (grabber !== this.#grabber) return;
        this.#isGrabbing = false;
        const { box, time } = this.#queue.shift();
        const height = Math.round(width * grabber.videoHeight / grabber.videoWidth) || width;
        const frame = element('canvas', { width, height });
        frame.getContext('2d').drawImage(grabber, 0, 0, width, height);
        if (this.#frames.size === keptFrames) this.#frames.delete(this.#frames.keys().next().value);
        this.#frames.set(time, frame);
        this.#showFrame(box, time);
        this.#grabNext();
    }
}
