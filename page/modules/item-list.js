import { element } from './dom.js';
import { IntervalIndex, lastStarted, sameItems } from './intervals.js';
import { label } from './labels.js';
import { formatTime } from './times.js';
import { VirtualList } from './virtual-list.js';

/** Makes the button of a row: the time and what follows it. */
export function makeRowButton(time, ...content) {
    return element('button', { type: 'button', class: 'row' },
        element('span', { class: 'row-time' }, formatTime(time)), element('span', { class: 'row-content' }, ...content));
}

/** A list of items with start and end: marks those that show now, and jumps to the one that is pressed. */
export class ItemList {
    #current = [];
    // The row of the time: that of the last item that started.
    #last = -1;
    #isFollowing = false;

    /** `makeContent(item)` returns what a row shows besides the time. */
    constructor(scroller, player, { name, estimate, makeContent }) {
        this.player = player;
        this.index = new IntervalIndex([]);
        this.empty = element('p', { class: 'empty', hidden: true }, label('nothing'));
        scroller.before(this.empty);
        this.list = new VirtualList(scroller, {
            name, estimate,
            makeRow: (row) => {
                const item = this.index.items[row];
                const button = makeRowButton(item.start, ...makeContent(item));
                button.addEventListener('click', () => player.seek(item.start));
                return button;
            },
            updateRow: (button, row) => {
                if (this.#current.includes(this.index.items[row])) button.setAttribute('aria-current', 'true');
                else button.removeAttribute('aria-current');
            },
        });
        // When the list becomes visible, too.
        new ResizeObserver(() => this.#follow()).observe(scroller);
    }

    /** Whether the list keeps the row of the time visible, except while the keyboard is at another row. */
    set isFollowing(isFollowing) {
        this.#isFollowing = isFollowing;
        this.#follow();
    }

    open(items) {
        this.index = new IntervalIndex(items);
        this.#current = [];
        this.#last = -1;
        this.empty.hidden = items.length > 0;
        this.list.reset(items.length);
        this.draw();
    }

    draw() {
        const { time } = this.player;
        const current = this.index.at(time);
        const last = lastStarted(this.index.items, time);
        if (last === this.#last && sameItems(current, this.#current)) return;
        this.#current = current;
        this.#last = last;
        this.list.draw();
        this.#follow();
    }

    /** Makes the rows again, for what they show now. */
    remake() {
        this.list.remake();
    }

    #follow() {
        if (this.#isFollowing && this.#last >= 0 && !this.list.isBrowsed) this.list.scrollTo(this.#last);
    }
}
