/** A clock with the members of a media element that Player uses: it stands in for a video. */
export class StageClock extends EventTarget {
    #position = 0;
    #startedAt;
    #rate = 1;
    #timer;

    /** The duration is in seconds. */
    constructor(duration) {
        super();
        this.duration = duration;
    }

    get paused() {
        return this.#startedAt === undefined;
    }

    get currentTime() {
        const elapsed = this.paused ? 0 : (performance.now() - this.#startedAt) / 1000 * this.#rate;
        return Math.min(this.#position + elapsed, this.duration);
    }

    set currentTime(seconds) {
        this.#moveTo(Math.min(Math.max(seconds, 0), this.duration));
        this.dispatchEvent(new Event('seeked'));
    }

    get playbackRate() {
        return this.#rate;
    }

    set playbackRate(rate) {
        const position = this.currentTime;
        this.#rate = rate;
        this.#moveTo(position);
    }

    play() {
        if (!this.paused) return;
        this.#startedAt = performance.now();
        this.#moveTo(this.#position < this.duration ? this.#position : 0);
        this.dispatchEvent(new Event('play'));
    }

    pause() {
        if (this.paused) return;
        this.#position = this.currentTime;
        this.#startedAt = undefined;
        clearTimeout(this.#timer);
        this.dispatchEvent(new Event('pause'));
    }

    #moveTo(position) {
        this.#position = position;
        clearTimeout(this.#timer);
        if (this.paused) return;
        this.#startedAt = performance.now();
        // A timer that is due later than this would fire at once.
        const wait = Math.min((this.duration - position) / this.#rate * 1000, 2 ** 31 - 1);
        this.#timer = setTimeout(() => {
            if (this.currentTime >= this.duration) this.pause();
            else this.#moveTo(this.currentTime);
        }, wait);
    }
}

/**
 * Plays a video or a StageClock and tells the time in milliseconds: dispatches "time" with every frame that
 * it plays and after every jump, and "state" when it starts or stops.
 */
export class Player extends EventTarget {
    #media;
    #listeners;

    constructor(media, duration) {
        super();
        this.duration = duration;
        this.use(media);
    }

    /** Goes on with the media instead, at the same time and speed. */
    use(media) {
        const time = this.#media?.currentTime ?? 0;
        const rate = this.#media?.playbackRate ?? 1;
        this.#media?.pause();
        this.#listeners?.abort();
        this.#media = media;
        this.#listeners = new AbortController();
        const { signal } = this.#listeners;
        for (const type of ['play', 'pause', 'ended'])
            media.addEventListener(type, () => this.#tellState(), { signal });
        media.addEventListener('seeked', () => this.#tellTime(), { signal });
        media.currentTime = time;
        media.playbackRate = rate;
        this.#tellState();
    }

    get time() {
        return Math.round(this.#media.currentTime * 1000);
    }

    get isPlaying() {
        return !this.#media.paused;
    }

    set rate(rate) {
        this.#media.playbackRate = rate;
    }

    get rate() {
        return this.#media.playbackRate;
    }

    toggle() {
        if (this.isPlaying) this.#media.pause();
        else this.#media.play();
    }

    seek(milliseconds) {
        this.#media.currentTime = Math.min(Math.max(milliseconds, 0), this.duration) / 1000;
        this.#tellTime();
    }

    #tellTime() {
        this.dispatchEvent(new Event('time'));
    }

    #tellState() {
        this.dispatchEvent(new Event('state'));
        this.#tellTime();
        if (this.isPlaying) requestAnimationFrame(() => this.#tick(this.#media));
    }

    #tick(media) {
        if (media !== this.#media || !this.isPlaying) return;
        this.#tellTime();
        requestAnimationFrame(() => this.#tick(media));
    }
}
