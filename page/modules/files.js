import { PacketError, decodePacket, parsePacket } from './packet.js';

/**
 * Returns the address of a file that a packet names, beside the page or in a folder there; undefined for any
 * other name, and if the page is not a local file: then the names in a packet must not cause requests.
 */
export function addressBeside(name, page = location) {
    if (page.protocol !== 'file:') return undefined;
    const steps = name.split('/');
    if (steps.some((step) => step === '' || step === '.' || step === '..')) return undefined;
    return steps.map(encodeURIComponent).join('/');
}

/** Sorts files into videos, images and others, which may be packets. */
export function sortFiles(files) {
    const sorted = { videos: [], images: [], packets: [] };
    for (const file of files) {
        if (file.type.startsWith('video/') || file.type.startsWith('audio/')) sorted.videos.push(file);
        else if (file.type.startsWith('image/')) sorted.images.push(file);
        else sorted.packets.push(file);
    }
    return sorted;
}

/**
 * Returns the first file that is a packet, with it. If there is none, returns the first file with its error, but
 * rather a file whose name says that it is one.
 */
export async function readFirstPacket(files) {
    const hasName = ({ name }) => /\.xmp$/i.test(name);
    let failed;
    for (const file of files) {
        try {
            return { file, packet: parsePacket(decodePacket(new Uint8Array(await file.arrayBuffer()))) };
        } catch (cause) {
            const error = cause instanceof PacketError ? cause : new PacketError('fileFailed', file);
            if (!failed || (hasName(file) && !hasName(failed.file))) failed = { file, error };
        }
    }
    return failed ?? {};
}
