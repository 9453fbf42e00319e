import { label } from './labels.js';

/** Writes milliseconds as subtitle files do: 00:00:39.200. */
export function formatTime(milliseconds) {
    const sign = milliseconds < 0 ? '-' : '';
    const value = Math.abs(milliseconds);
    const part = (unit, modulus, digits) =>
        String(Math.floor(value / unit) % modulus).padStart(digits, '0');
    return `${sign}${part(3600000, Infinity, 2)}:${part(60000, 60, 2)}:${part(1000, 60, 2)}.`
        + part(1, 1000, 3);
}

/** Says milliseconds in words, without the fraction of a second: 1 minute 3 seconds. */
export function spokenTime(milliseconds) {
    const seconds = Math.floor(milliseconds / 1000);
    const parts = [
        ['hours', Math.floor(seconds / 3600)],
        ['minutes', Math.floor(seconds / 60) % 60],
        ['seconds', seconds % 60],
    ];
    const spoken = parts.filter(([, count]) => count !== 0);
    return (spoken.length > 0 ? spoken : parts.slice(-1)).map(([key, count]) => label(key, { count })).join(' ');
}
