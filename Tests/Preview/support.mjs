// What the browser tests share: the program with its phone, a browser, and what a person would read off the page.
import { spawn } from "node:child_process";
import { once } from "node:events";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { createInterface } from "node:readline";
import { after, before } from "node:test";

const { chromium } = createRequire(`${process.env.LYR_PREVIEW_MODULES}/`)("playwright-core");

export const settingsFile = "var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";
export const coloursFile = "var/mobile/Library/Preferences/com.ostrel.colorslyr.plist";
export const wallpaperFile = "var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg";
export const moment = "2020-11-15T21:41:00";
// The phone's clock goes on while a test waits. With the hour alone it is a test that changes the picture, never a minute.
export const still = { timeFormat: "hh" };

// A test waits for what is to happen, however slow the machine is; after this long it counts as a hang. The whole file
// has twice as long, so that a hang is told with its line.
const limit = 1000 * Number(process.env.LYR_PREVIEW_LIMIT ?? 600) / 2;

export function makeRoot() {
    return mkdtempSync(join(tmpdir(), "lyr-preview-"));
}

export function removeRoot(root) {
    rmSync(root, { recursive: true, force: true });
}

// `lyr preview` on a root folder; the line that it prints is its address.
export class Preview {
    static async start(root, options = [], screen = "375x812@1") {
        const preview = new Preview();
        preview.root = root;
        const settings = join(root, "settings.json");
        writeFileSync(settings, JSON.stringify(still));
        preview.process = spawn(process.env.LYR_PROGRAM, ["preview", "--root", root, "--time", moment,
            "--screen", screen, "--settings", settings, ...options], { stdio: ["ignore", "pipe", "ignore"] });
        const ended = once(preview.process, "exit").then(([status, signal]) => {
            throw new Error(`lyr preview ended with ${signal ?? status}`);
        });
        // Later it may.
        ended.catch(() => {});
        [preview.address] = await Promise.race([once(createInterface(preview.process.stdout), "line"), ended]);
        return preview;
    }

    get port() {
        return Number(new URL(this.address).port);
    }

    read(path) {
        return readFileSync(join(this.root, path), "utf8");
    }

    async stop(signal = "SIGTERM") {
        const ended = once(this.process, "exit");
        this.process.kill(signal);
        return (await ended)[1];
    }
}

export async function startBrowser() {
    return chromium.launch({
        executablePath: process.env.LYR_CHROMIUM ?? "/usr/bin/chromium", args: ["--no-sandbox"], timeout: limit,
    });
}

// One phone on a root folder of its own and one browser for all tests of a file; `take` gets them before the first.
export function sharePhoneAndBrowser(take) {
    const shared = { root: makeRoot() };
    before(async () => {
        [shared.preview, shared.browser] = await Promise.all([Preview.start(shared.root), startBrowser()]);
        take(shared);
    });
    after(async () => {
        await shared.browser.close();
        await shared.preview.stop();
        removeRoot(shared.root);
    });
}

// A page that is ready, with all that it complained about.
export async function openPage(browser, address, options = {}) {
    const context = await browser.newContext({ locale: "en-US", permissions: ["clipboard-read", "clipboard-write"], ...options });
    context.setDefaultTimeout(limit);
    const page = await context.newPage();
    page.complaints = [];
    page.requests = [];
    page.on("console", (message) => ["error", "warning"].includes(message.type()) && page.complaints.push(message.text()));
    page.on("pageerror", (error) => page.complaints.push(String(error)));
    page.on("request", (request) => page.requests.push(request.url()));
    await page.goto(address);
    await page.waitForSelector("body[data-ready]");
    await page.waitForSelector("#screen[data-frame]");
    return page;
}

// What the phone shows, to be compared.
export function picture(page) {
    return page.evaluate(() => document.getElementById("screen").toDataURL());
}

export function untilPictureDiffers(page, before) {
    return page.waitForFunction((old) => document.getElementById("screen").toDataURL() !== old, before);
}

export function untilPictureIs(page, wanted) {
    return page.waitForFunction((one) => document.getElementById("screen").toDataURL() === one, wanted);
}

function untilScreenIs(page, wantsDark) {
    return page.waitForFunction((wanted) => {
        const canvas = document.getElementById("screen");
        const pixels = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height).data;
        return pixels.every((value, index) => index % 4 === 3 || value === 0) === wanted;
    }, wantsDark);
}

export function untilDark(page) {
    return untilScreenIs(page, true);
}

export function untilLit(page) {
    return untilScreenIs(page, false);
}

// A method of the control protocol, as the page calls it, over a connection that the page keeps for its test.
export function call(page, method, params = {}) {
    return page.evaluate(({ method, params }) => new Promise((resolve, reject) => {
        if (!(window.testSocket?.readyState <= WebSocket.OPEN))
            window.testSocket = new WebSocket(`ws://${location.host}/control`);
        const socket = window.testSocket;
        const id = `test ${(window.testCalls = (window.testCalls ?? 0) + 1)}`;
        const send = () => socket.send(JSON.stringify({ jsonrpc: "2.0", id, method, params }));
        const heard = new AbortController();
        const { signal } = heard;
        socket.addEventListener("message", ({ data }) => {
            const reply = JSON.parse(data);
            if (reply.id !== id)
                return;
            heard.abort();
            resolve(reply);
        }, { signal });
        socket.addEventListener("close", () => reject(new Error(`the connection ended at ${method}`)), { signal });
        if (socket.readyState === WebSocket.OPEN)
            send();
        else
            socket.addEventListener("open", send, { signal });
    }), { method, params });
}

// Asks until the phone answers as wanted, once for each picture of the browser's, and answers what it said.
export async function until(page, ask, isWanted) {
    for (;;) {
        const answer = await ask();
        if (isWanted(answer))
            return answer;
        await page.evaluate(() => new Promise(requestAnimationFrame));
    }
}

// What the phone says of a view, once that is on the screen or, if so wished, no more.
export function untilShown(page, id, isShown = true) {
    return until(page, async () => (await call(page, "view.get", { id })).result,
        (found) => Boolean(found?.onScreen) === isShown);
}

export function untilStatus(page, text) {
    return page.waitForFunction((part) => document.getElementById("status").textContent.includes(part), text);
}
