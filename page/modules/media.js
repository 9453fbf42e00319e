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
 * Plays a video, and a StageClock where there is none: without a video, and after the end of one that is shorter
 * than the packet. Tells the time in milliseconds: dispatches "time" with every frame that it plays and after
 * every jump, and "state" when it starts, stops or changes between video and clock.
 */
export class Player extends EventTarget {
    #clock = new StageClock(0);
    #media = this.#clock;
    #listeners = new AbortController();
    #video;
    #videoLength = -1;
    #packetLength = 0;

    constructor() {
        super();
        this.#listen();
    }

    /** Sets the length of the packet, in milliseconds. */
    set packetLength(milliseconds) {
        this.#packetLength = milliseconds;
        this.#clock.duration = this.duration / 1000;
    }

    /** Uses a video of so many seconds, undefined for none, and goes on at the same time and speed. */
    use(video, seconds = -1) {
        const { time } = this;
        this.#video = video;
        this.#videoLength = Math.round(seconds * 1000);
        this.#clock.duration = this.duration / 1000;
        this.seek(time);
    }

    /** The longer of the packet and the video, if its length is known. */
    get duration() {
        return Math.max(this.#packetLength, Number.isFinite(this.#videoLength) ? this.#videoLength : 0);
    }

    get time() {
        return Math.min(Math.round(this.#media.currentTime * 1000), this.duration);
    }

    get isPlaying() {
        return !this.#media.paused;
    }

    /** Whether the time is one of the video. */
    get isInVideo() {
        return this.#media === this.#video;
    }

    set rate(rate) {
        this.#media.playbackRate = rate;
    }

    get rate() {
        return this.#media.playbackRate;
    }

    toggle() {
        if (this.isPlaying) {
            this.#media.pause();
        } else {
            if (this.time >= this.duration) this.seek(0);
            this.#play();
        }
    }

    seek(milliseconds) {
        const time = Math.min(Math.max(milliseconds, 0), this.duration);
        const isInVideo = time < this.#videoLength || this.#videoLength >= this.duration;
        this.#moveTo(isInVideo ? this.#video : this.#clock, time);
        this.#tellTime();
    }

    #moveTo(media, time) {
        const { isPlaying, rate } = this;
        const isOther = media !== this.#media;
        if (isOther) {
            this.#listeners.abort();
            this.#media.pause();
            this.#media = media;
            this.#listen();
            media.playbackRate = rate;
        }
        media.currentTime = time / 1000;
        if (isOther && isPlaying) this.#play();
        if (isOther) this.#tellState();
    }

    #play() {
        // A video that another action stops before it began is no error.
        this.#media.play()?.catch(() => {});
    }

    #listen() {
        this.#listeners = new AbortController();
        const { signal } = this.#listeners;
        for (const type of ['play', 'pause'])
            this.#media.addEventListener(type, () => this.#tellState(), { signal });
        this.#media.addEventListener('seeked', () => this.#tellTime(), { signal });
        this.#media.addEventListener('ended', () => {
            if (this.#videoLength >= this.duration) return;
            this.#moveTo(this.#clock, this.#videoLength);
            this.#play();
        }, { signal });
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
