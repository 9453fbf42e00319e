import { element } from './dom.js';

// Rows beyond each end of the window that are in the document, so that a short scroll shows no gap.
const overscan = 4;

/**
 * A list whose rows are in the document only while they are visible. Rows are buttons. One of them is a tab
 * stop and always in the document; the arrow keys, Page Up, Page Down, Home and End move the focus.
 */
export class VirtualList {
    #rows = new Map();
    #heights = [];
    #tops = [0];
    #active = 0;

    /** Whether the keyboard is at a row that was not pressed since. */
    isBrowsed = false;

    /**
     * `makeRow(index)` makes the button of a row, and `updateRow(button, index)` shows its state, each time
     * that the row is drawn. Until a row was visible, it counts as `estimate` pixels high.
     */
    constructor(scroller, { name, estimate = 40, makeRow, updateRow = () => {} }) {
        this.scroller = scroller;
        this.estimate = estimate;
        this.makeRow = makeRow;
        this.updateRow = updateRow;
        this.list = element('div', { class: 'virtual-rows', role: 'list', 'aria-label': name });
        scroller.classList.add('virtual-list');
        scroller.append(this.list);
        scroller.addEventListener('scroll', () => this.draw(), { passive: true });
        this.list.addEventListener('keydown', (event) => this.#moveFocus(event));
        this.list.addEventListener('focusin', ({ target }) => {
            this.#setActive(this.#indexOf(target));
            this.isBrowsed = target.matches(':focus-visible');
        });
        for (const type of ['click', 'focusout'])
            this.list.addEventListener(type, () => { this.isBrowsed = false; });
        new ResizeObserver(() => this.draw()).observe(scroller);
    }

    get count() {
        return this.#heights.length;
    }

    /** Shows other rows, from the first on. */
    reset(count) {
        this.#removeRows();
        this.#heights = new Array(count).fill(this.estimate);
        this.#active = 0;
        this.list.hidden = count === 0;
        this.#place();
        this.scroller.scrollTop = 0;
        this.draw();
    }

    /** Makes the same rows again; list and focus stay where they are. */
    remake() {
        const hasFocus = this.list.contains(document.activeElement);
        this.#removeRows();
        this.draw();
        if (hasFocus) this.#buttonOf(this.#active).focus({ preventScroll: true });
    }

    #removeRows() {
        for (const row of this.#rows.values()) row.remove();
        this.#rows.clear();
    }

    /** Draws the rows that are visible now. */
    draw() {
        if (this.scroller.clientHeight === 0) return;
        // New rows can be lower than estimated, so that more become visible.
        for (let pass = 0; pass < 5 && this.#drawOnce(); ++pass);
    }

    /** Scrolls to the row, if it is not in the middle of the window already. */
    scrollTo(index) {
        this.#settle((top, bottom, view) => {
            if (top < view * 0.2 || bottom > view * 0.7) this.scroller.scrollTop += top - view * 0.3;
        }, index);
    }

    focus(index = this.#active) {
        if (this.count === 0) return;
        this.#setActive(Math.min(Math.max(index, 0), this.count - 1));
        this.#reveal(this.#active);
        this.#buttonOf(this.#active).focus({ preventScroll: true });
    }

    #buttonOf(index) {
        return this.#rows.get(index).firstElementChild;
    }

    #indexOf(node) {
        return Number(node.closest('[role=listitem]').getAttribute('aria-posinset')) - 1;
    }

    #setActive(index) {
        const before = this.#rows.get(this.#active)?.firstElementChild;
        if (before) before.tabIndex = -1;
        this.#active = index;
        const now = this.#rows.get(index)?.firstElementChild;
        if (now) now.tabIndex = 0;
    }

    #reveal(index) {
        this.#settle((top, bottom, view) => {
            if (top < 0) this.scroller.scrollTop += top;
            else if (bottom > view) this.scroller.scrollTop += bottom - view;
        }, index);
    }

    // Scrolls and draws. Drawing can change the heights of the rows above, so the place is checked again.
    #settle(scroll, index) {
        for (let pass = 0; pass < 3; ++pass) {
            const { scrollTop, clientHeight } = this.scroller;
            scroll(this.#tops[index] - scrollTop, this.#tops[index + 1] - scrollTop, clientHeight);
            this.draw();
        }
    }

    #moveFocus(event) {
        if (event.ctrlKey || event.altKey || event.metaKey) return;
        const page = Math.max(1, Math.floor(this.scroller.clientHeight / this.estimate) - 1);
        const last = this.count - 1;
        const target = {
            ArrowDown: this.#active + 1, ArrowUp: this.#active - 1, PageDown: this.#active + page,
            PageUp: this.#active - page, Home: 0, End: last,
        }[event.key];
        if (target === undefined) return;
        event.preventDefault();
        this.focus(target);
    }

    #place() {
        this.#tops = [0];
        for (const height of this.#heights) this.#tops.push(this.#tops[this.#tops.length - 1] + height);
        this.list.style.height = `${Math.ceil(this.#tops[this.count])}px`;
        for (const [index, row] of this.#rows) row.style.top = `${this.#tops[index]}px`;
    }

    #rowAt(offset) {
        let low = 0;
        let high = this.count - 1;
        while (low < high) {
            const middle = (low + high + 1) >> 1;
            if (this.#tops[middle] <= offset) low = middle;
            else high = middle - 1;
        }
        return low;
    }

    // Returns whether heights changed.
    #drawOnce() {
        const begin = this.scroller.scrollTop;
        const anchor = this.#rowAt(begin);
        const first = Math.max(0, anchor - overscan);
        const last = Math.min(this.count - 1, this.#rowAt(begin + this.scroller.clientHeight) + overscan);
        for (const [index, row] of this.#rows) {
            if ((index < first || index > last) && index !== this.#active) {
                row.remove();
                this.#rows.delete(index);
            }
        }
        for (let index = first; index <= last; ++index) {
            if (!this.#rows.has(index)) this.#addRow(index);
            this.updateRow(this.#buttonOf(index), index);
        }
        if (this.count > 0 && !this.#rows.has(this.#active)) this.#addRow(this.#active);
        return this.#measure(anchor);
    }

    #addRow(index) {
        const button = this.makeRow(index);
        button.tabIndex = index === this.#active ? 0 : -1;
        const row = element('div',
            { role: 'listitem', 'aria-posinset': index + 1, 'aria-setsize': this.count }, button);
        row.style.top = `${this.#tops[index]}px`;
        this.#rows.set(index, row);
        // Readers and the tab key meet the rows in their order.
        const next = [...this.list.children].find((other) => this.#indexOf(other) > index);
        this.list.insertBefore(row, next ?? null);
    }

    #measure(anchor) {
        let changed = false;
        let shift = 0;
        for (const [index, row] of this.#rows) {
            const { height } = row.getBoundingClientRect();
            if (height === this.#heights[index]) continue;
            if (index < anchor) shift += height - this.#heights[index];
            this.#heights[index] = height;
            changed = true;
        }
        if (changed) this.#place();
        // What is visible stays where it is.
        if (shift !== 0) this.scroller.scrollTop += shift;
        return changed;
    }
}
