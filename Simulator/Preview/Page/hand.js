// What a hand does: fingers by pointer or by keyboard, the side button, and the buttons under the phone.
import { noSuchMethod } from "./connection.js";
import { element } from "./elements.js";

const arrows = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] };
const step = 8;

function isTyping(target) {
    return target.matches("select, textarea, input:not([type=checkbox], [type=range], [type=color])");
}

export class Hand {
    #isDown = false;
    #hasTouch = true;
    #cursor;
    #moving = null;
    #pressed = Promise.resolve();

    constructor({ screen, connection, cursor, bar, text, report, standing }) {
        Object.assign(this, { screen, connection, text, report, standing });
        this.cursorMark = cursor;
        const { canvas } = screen;
        canvas.addEventListener("pointerdown", (event) => this.#pointerDown(event));
        canvas.addEventListener("pointermove", (event) => this.#isDown && this.#touch("move", this.#at(event)));
        for (const name of ["pointerup", "pointercancel"])
            canvas.addEventListener(name, (event) => this.#lift(this.#at(event)));
        canvas.addEventListener("keydown", (event) => this.#screenKey(event));
        canvas.addEventListener("keyup", (event) => event.key === "Enter" && this.#lift(this.#cursor));
        canvas.addEventListener("blur", () => this.#hideCursor());
        document.addEventListener("keydown", (event) => this.#pageKey(event));
        connection.addEventListener("open", () => (this.#hasTouch = true));
        this.#fill(bar);
    }

    #fill(bar) {
        const button = (name, run) =>
            element("button", { type: "button", id: `hand-${name}`, onclick: run }, this.text(name));
        bar.setAttribute("aria-label", this.text("hand"));
        bar.append(
            button("sideButton", () => this.sideButton()),
            button("unlock", () => this.#do("phone.unlock")),
            button("coverSheet", () => this.#do("phone.coverSheet")),
            button("touchAndHold", () => this.#hold()),
        );
    }

    // Pressed again before the phone has answered, it still does the other thing.
    sideButton() {
        this.#pressed = this.#pressed.then(() =>
            this.#do(this.standing().isLit === false ? "phone.wake" : "phone.lock"));
    }

    async #do(method, params) {
        try {
            await this.connection.call(method, params);
        } catch (error) {
            if (error.code === noSuchMethod && method.startsWith("touch.")) {
                this.#hasTouch = false;
                this.report(this.text("noTouch"));
            } else {
                this.report(error.message);
            }
        }
    }

    #hold() {
        const { width, height } = this.screen.size;
        return this.#do("touch.press", { at: [width / 2, height / 2], seconds: 0.7 });
    }

    #at(event) {
        return this.screen.pointAt(event.clientX, event.clientY);
    }

    #pointerDown(event) {
        if (event.button !== 0)
            return;
        event.target.setPointerCapture(event.pointerId);
        this.#isDown = true;
        this.#touch("down", this.#at(event));
    }

    #lift(at) {
        if (!this.#isDown)
            return;
        this.#isDown = false;
        this.#touch("up", at);
    }

    // Moves are told one at a time, the latest only.
    async #touch(what, at) {
        if (!this.#hasTouch)
            return;
        if (what !== "move") {
            this.#moving = null;
            return this.#do(`touch.${what}`, { at });
        }
        const isUnderWay = this.#moving !== null;
        this.#moving = at;
        if (isUnderWay)
            return;
        while (this.#moving && this.#isDown) {
            const next = this.#moving;
            await this.#do("touch.move", { at: next });
            if (this.#moving === next)
                this.#moving = null;
        }
        this.#moving = null;
    }

    #pageKey(event) {
        if (event.defaultPrevented || event.repeat || event.ctrlKey || event.metaKey || event.altKey)
            return;
        if (event.key === "Escape" && !isTyping(event.target)) {
            event.preventDefault();
            this.sideButton();
        } else if (event.key === " " && (event.target === document.body || event.target === this.screen.canvas)) {
            event.preventDefault();
            this.#do("phone.wake");
        }
    }

    // The arrows move a finger's shadow over the screen, Enter puts the finger down.
    #screenKey(event) {
        if (event.key in arrows) {
            event.preventDefault();
            const [x, y] = arrows[event.key];
            this.#moveCursor(x * (event.shiftKey ? 1 : step), y * (event.shiftKey ? 1 : step));
            if (this.#isDown)
                this.#touch("move", this.#cursor);
        } else if (event.key === "Enter" && !event.repeat) {
            event.preventDefault();
            this.#moveCursor(0, 0);
            this.#isDown = true;
            this.#touch("down", this.#cursor);
        }
    }

    #moveCursor(x, y) {
        const { width, height } = this.screen.size;
        const [oldX, oldY] = this.#cursor ?? [width / 2, height / 2];
        const newX = Math.min(Math.max(oldX + x, 0), width);
        const newY = Math.min(Math.max(oldY + y, 0), height);
        this.#cursor = [newX, newY];
        this.cursorMark.hidden = false;
        this.cursorMark.style.left = `${newX / width * 100}%`;
        this.cursorMark.style.top = `${newY / height * 100}%`;
    }

    #hideCursor() {
        this.#lift(this.#cursor);
        this.cursorMark.hidden = true;
    }
}
