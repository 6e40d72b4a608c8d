/** How many bytes the page loads in all, compressed: counted when it is built. */
export const bytesLoaded = BYTES_LOADED;
