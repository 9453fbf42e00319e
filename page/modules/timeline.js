import { element, textElement } from './dom.js';
import { IntervalIndex } from './intervals.js';
import { label } from './labels.js';
import { hasText } from './packet.js';
import { formatTime } from './times.js';

const svg = 'http://www.w3.org/2000/svg';
// The width of a lane in its own units.
const laneWidth = 10000;

/** Draws a lane for the captions of each language, the contents and the screen texts; a click jumps. */
export class Timeline {
    constructor(container, player) {
        this.container = container;
        this.player = player;
        this.lanes = [];
    }

    open(packet) {
        this.lanes = [
            ...packet.languages.map(({ id, name }) => ({
                kind: 'captions', name: textElement('span', name),
                items: packet.captions.items.filter((caption) => hasText(caption, id)),
                textOf: (caption) => caption.texts.get(id),
            })),
            {
                kind: 'contents', name: element('span', {}, label('laneOfContents')), items: packet.contents.items,
                textOf: (entry) => entry.text,
            },
            {
                kind: 'screen-texts', name: element('span', {}, label('laneOfScreenTexts')), items: packet.screenTexts.items,
                textOf: (item) => item.text,
            },
        ].filter(({ items }) => items.length > 0);
        this.container.replaceChildren(...this.lanes.map((lane) => this.#makeLane(lane)));
        const beyond = packet.header.length < this.player.duration && packet.header.length > 0;
        this.container.style.setProperty(
            '--video-end', beyond ? packet.header.length / this.player.duration : 1);
        this.container.classList.toggle('has-end', beyond);
        this.#fit();
    }

    draw() {
        const { time, duration } = this.player;
        this.container.style.setProperty('--position', duration > 0 ? Math.min(time / duration, 1) : 0);
    }

    // Lanes that need scrolling can be scrolled by keyboard, and the seek bar is as long as they are.
    #fit() {
        const { container } = this;
        if (container.scrollHeight > container.clientHeight) container.tabIndex = 0;
        else container.removeAttribute('tabindex');
        container.parentElement.style.setProperty('--scroll-bar', `${container.offsetWidth - container.clientWidth}px`);
    }

    // One path for all items, so that a long packet makes no more elements than a short one.
    #makeLane(lane) {
        const scale = laneWidth / (this.player.duration || 1);
        const path = document.createElementNS(svg, 'path');
        path.setAttribute('d', lane.items.map(({ start, end }) => {
            const width = Math.max((end - start) * scale, 1);
            return `M${(start * scale).toFixed(1)} 0h${width.toFixed(1)}v1h${(-width).toFixed(1)}z`;
        }).join(''));
        const drawing = document.createElementNS(svg, 'svg');
        drawing.setAttribute('viewBox', `0 0 ${laneWidth} 1`);
        drawing.setAttribute('preserveAspectRatio', 'none');
        drawing.setAttribute('aria-hidden', 'true');
        drawing.append(path);

        const index = new IntervalIndex(lane.items);
        const track = element('div', { class: 'lane-track' }, drawing);
        const timeAt = (event) => {
            const { left, width } = track.getBoundingClientRect();
            return (event.clientX - left) / width * this.player.duration;
        };
        track.addEventListener('pointermove', (event) => {
            const item = index.at(timeAt(event))[0];
            track.title = item ? `${formatTime(item.start)} ${lane.textOf(item)}` : formatTime(timeAt(event));
        });
        track.addEventListener('click', (event) =>
            this.player.seek(index.at(timeAt(event))[0]?.start ?? timeAt(event)));
        lane.name.className = 'lane-name';
        return element('div', { class: `lane lane-${lane.kind}` }, lane.name, track);
    }
}
