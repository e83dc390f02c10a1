// The WebSocket to the phone: calls with their replies, news, frames. When it is lost it is sought again.

const shortestPause = 250;
const longestPause = 2000;

// A reply that says why not.
export class PhoneError extends Error {
    constructor({ code, message }) {
        super(message);
        this.code = code;
    }
}
export const noSuchMethod = -32601;
const connectionLost = -32000;

export class Connection extends EventTarget {
    #socket;
    #lastId = 0;
    #calls = new Map();
    #pause = shortestPause;

    // Events: "open", "lost", "frame" (an ArrayBuffer), and one of its name for each of the phone's news.
    open() {
        this.#socket = new WebSocket(`ws://${location.host}/control`);
        this.#socket.binaryType = "arraybuffer";
        this.#socket.onopen = () => {
            this.#pause = shortestPause;
            this.#tell("open");
        };
        this.#socket.onmessage = ({ data }) => this.#take(data);
        this.#socket.onclose = () => this.#lose();
    }

    get isOpen() {
        return this.#socket?.readyState === WebSocket.OPEN;
    }

    call(method, params = {}) {
        return new Promise((resolve, reject) => {
            if (!this.isOpen)
                return reject(new PhoneError({ code: connectionLost, message: "no connection" }));
            const id = ++this.#lastId;
            this.#calls.set(id, { resolve, reject });
            this.#socket.send(JSON.stringify({ jsonrpc: "2.0", id, method, params }));
        });
    }

    // Without a reply.
    say(method, params = {}) {
        if (this.isOpen)
            this.#socket.send(JSON.stringify({ jsonrpc: "2.0", method, params }));
    }

    #take(data) {
        if (typeof data !== "string")
            return this.#tell("frame", data);
        const document = JSON.parse(data);
        if (document.method)
            return this.#tell(document.method, document.params);
        const call = this.#calls.get(document.id);
        this.#calls.delete(document.id);
        if (document.error)
            call?.reject(new PhoneError(document.error));
        else
            call?.resolve(document.result);
    }

    #lose() {
        for (const { reject } of this.#calls.values())
            reject(new PhoneError({ code: connectionLost, message: "the connection was lost" }));
        this.#calls.clear();
        this.#tell("lost");
        setTimeout(() => this.open(), this.#pause);
        this.#pause = Math.min(this.#pause * 2, longestPause);
    }

    #tell(name, detail) {
        this.dispatchEvent(new CustomEvent(name, { detail }));
    }
}
