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
