// Views of the module's whole memory, made anew where it has grown.
export class MemoryViews {
  #memory;
  #buffer = null;

  constructor(memory) {
    this.#memory = memory;
    this.refresh();
  }

  refresh() {
    const { buffer } = this.#memory;
    if (buffer === this.#buffer) return this;
    this.#buffer = buffer;
    this.doubles = new Float64Array(buffer);
    this.ints = new Int32Array(buffer);
    this.flags = new Int16Array(buffer);
    this.pointers = new Uint32Array(buffer);
    this.units = new Uint16Array(buffer); // of UTF-16
    this.bytes = new Uint8Array(buffer);
    return this;
  }

  // The cells of a kind from an address on.
  cells(kind, offset, length) {
    const whole = this[kind];
    const first = offset / whole.BYTES_PER_ELEMENT;
    return whole.subarray(first, first + length);
  }

  // Plain text up to a 0.
  message(offset) {
    return new TextDecoder().decode(this.bytes.slice(offset, this.bytes.indexOf(0, offset)));
  }
}
