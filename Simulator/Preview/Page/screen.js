// The phone's picture on a canvas. After each frame the canvas has an event "frame" with when it was drawn and shown.

function clock() {
    return performance.timeOrigin + performance.now();
}

// A frame's header and its pixels, as docs/preview.md says.
function parse(buffer) {
    const length = new DataView(buffer).getUint32(0, true);
    const header = JSON.parse(new TextDecoder().decode(new Uint8Array(buffer, 4, length)));
    return { header, start: 4 + length };
}

export class Screen {
    // In points, as touches are told.
    size = { width: 375, height: 812, scale: 3 };

    constructor(canvas, connection) {
        this.canvas = canvas;
        this.connection = connection;
        this.context = canvas.getContext("2d", { alpha: false });
        connection.addEventListener("open", () => connection.call("screen.follow").catch(() => {}));
        connection.addEventListener("frame", ({ detail }) => this.#show(detail));
    }

    #show(buffer) {
        const arrived = clock();
        const { header, start } = parse(buffer);
        const [width, height] = header.pixels;
        if (this.canvas.width !== width || this.canvas.height !== height)
            Object.assign(this.canvas, { width, height });
        this.size = header.screen;
        let at = start;
        for (const [x, y, partWidth, partHeight] of header.parts) {
            const pixels = new Uint8ClampedArray(buffer, at, partWidth * partHeight * 4);
            this.context.putImageData(new ImageData(pixels, partWidth, partHeight), x, y);
            at += pixels.length;
        }
        this.canvas.dataset.frame = header.frame;
        const painted = clock();
        this.connection.say("screen.shown");
        requestAnimationFrame(() => this.#told(header, { ...header.times, arrived, painted, shown: clock() }));
    }

    #told(header, times) {
        const { frame, secondsDrawn } = header;
        this.canvas.dispatchEvent(new CustomEvent("frame", { detail: { frame, secondsDrawn, times } }));
    }

    // A point of the page in the phone's points.
    pointAt(clientX, clientY) {
        const box = this.canvas.getBoundingClientRect();
        const within = (value, length) => Math.min(Math.max(value, 0), length);
        return [
            within((clientX - box.left) / box.width * this.size.width, this.size.width),
            within((clientY - box.top) / box.height * this.size.height, this.size.height),
        ];
    }

    picture() {
        return new Promise((resolve) => this.canvas.toBlob(resolve, "image/png"));
    }
}
