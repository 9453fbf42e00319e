import { label } from './labels.js';
import { formatTime, spokenTime } from './times.js';

const step = 1000;
const page = 10000;

/** A slider for the position, as the ARIA practices describe it. */
export class SeekBar {
    #dragging = false;

    constructor(slider, player) {
        this.slider = slider;
        this.player = player;
        slider.setAttribute('aria-valuemin', '0');
        slider.addEventListener('keydown', (event) => this.#press(event));
        slider.addEventListener('pointerdown', (event) => {
            this.#dragging = true;
            slider.setPointerCapture(event.pointerId);
            slider.focus();
            this.#seekTo(event);
        });
        slider.addEventListener('pointermove', (event) => {
            if (this.#dragging) this.#seekTo(event);
        });
        for (const type of ['pointerup', 'pointercancel'])
            slider.addEventListener(type, () => { this.#dragging = false; });
    }

    draw() {
        const { time, duration } = this.player;
        this.slider.setAttribute('aria-valuemax', String(Math.round(duration / 1000)));
        this.slider.setAttribute('aria-valuenow', String(Math.floor(time / 1000)));
        this.slider.setAttribute('aria-valuetext',
            label('position', { time: spokenTime(time), duration: spokenTime(duration) }));
        this.slider.style.setProperty('--position', duration > 0 ? Math.min(time / duration, 1) : 0);
        this.slider.title = formatTime(time);
    }

    #press(event) {
        if (event.ctrlKey || event.altKey || event.metaKey) return;
        const { time, duration } = this.player;
        const target = {
            ArrowRight: time + step, ArrowUp: time + step, ArrowLeft: time - step, ArrowDown: time - step,
            PageUp: time + page, PageDown: time - page, Home: 0, End: duration,
        }[event.key];
        if (target === undefined) return;
        event.preventDefault();
        this.player.seek(target);
    }

    #seekTo(event) {
        const { left, width } = this.slider.getBoundingClientRect();
        this.player.seek((event.clientX - left) / width * this.player.duration);
    }
}
