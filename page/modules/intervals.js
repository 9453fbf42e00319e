// Items in the order of their starts, found by time.

function countWhere(items, isBefore) {
    let low = 0;
    let high = items.length;
    while (low < high) {
        const middle = (low + high) >> 1;
        if (isBefore(items[middle])) low = middle + 1;
        else high = middle;
    }
    return low;
}

/** Returns the index of the last item that starts at or before the time; -1 if there is none. */
export function lastStarted(items, time) {
    return countWhere(items, (item) => item.start <= time) - 1;
}

/** Returns the index of the first item that starts after the time; items.length if there is none. */
export function firstAfter(items, time) {
    return countWhere(items, (item) => item.start <= time);
}

/** Returns the index of the last item that starts before the time; -1 if there is none. */
export function lastBefore(items, time) {
    return countWhere(items, (item) => item.start < time) - 1;
}

/** Finds the items that show at a time: from the start, until just before the end. */
export class IntervalIndex {
    constructor(items) {
        this.items = items;
        // The latest end of each item and those before it, so that a search knows when to stop.
        let latest = -Infinity;
        this.latestEnds = items.map((item) => (latest = Math.max(latest, item.end)));
    }

    at(time) {
        const found = [];
        for (let i = lastStarted(this.items, time); i >= 0 && this.latestEnds[i] > time; --i)
            if (this.items[i].end > time) found.push(this.items[i]);
        return found.reverse();
    }
}

/** Returns whether both lists hold the same items. */
export function sameItems(a, b) {
    return a.length === b.length && a.every((item, index) => item === b[index]);
}
