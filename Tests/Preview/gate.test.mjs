// Who is let in: this machine by its own name, and the page's own origin.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { readFileSync } from "node:fs";
import { request } from "node:http";
import { after, before, test } from "node:test";
import { makeRoot, Preview, removeRoot } from "./support.mjs";

let root, preview;
before(async () => {
    root = makeRoot();
    preview = await Preview.start(root);
});
after(async () => {
    await preview.stop();
    removeRoot(root);
});

function ask(path, headers = {}, method = "GET") {
    return new Promise((resolve, reject) => {
        const asked = request({ host: "127.0.0.1", port: preview.port, path, headers, method }, (response) => {
            let body = "";
            response.on("data", (part) => (body += part));
            response.on("end", () => resolve({ status: response.statusCode, headers: response.headers, body }));
        });
        asked.on("upgrade", (response, socket) => {
            socket.destroy();
            resolve({ status: response.statusCode, headers: response.headers });
        });
        asked.on("error", reject);
        asked.end();
    });
}

const upgrade = {
    Connection: "Upgrade", Upgrade: "websocket", "Sec-WebSocket-Version": "13",
    "Sec-WebSocket-Key": "AAAAAAAAAAAAAAAAAAAAAA==",
};

test("serves the page with a strict policy", async () => {
    const { status, headers, body } = await ask("/");
    assert.equal(status, 200);
    assert.equal(headers["content-type"], "text/html; charset=utf-8");
    assert.match(headers["content-security-policy"], /^default-src 'none'; script-src 'self'; style-src 'self';/);
    assert.doesNotMatch(headers["content-security-policy"], /unsafe|\*/);
    assert.equal(headers["x-content-type-options"], "nosniff");
    assert.equal(headers["set-cookie"], undefined);
    assert.match(body, /<title>LYR Pro<\/title>/);
});

test("serves nothing beside the page's files", async () => {
    for (const path of ["/nothing", "/../System/Library/x", "/%2e%2e/System", "//etc/passwd", "/index.html/", "/.", "/.."])
        assert.equal((await ask(path)).status, 404, path);
    assert.equal((await ask("/", {}, "POST")).status, 405);
});

test("refuses a host that is not its own", async () => {
    const { port } = preview;
    for (const host of ["example.com", `example.com:${port}`, "127.0.0.1", `127.0.0.1:${port + 1}`, `127.0.0.1.example.com:${port}`])
        assert.equal((await ask("/", { Host: host })).status, 403, host);
    for (const host of [`127.0.0.1:${port}`, `localhost:${port}`, `LOCALHOST:${port}`, `[::1]:${port}`])
        assert.equal((await ask("/", { Host: host })).status, 200, host);
    assert.equal((await ask("/control", { ...upgrade, Host: `example.com:${port}` })).status, 403);
});

test("lets no page of another origin at the phone", async () => {
    const { port } = preview;
    for (const origin of ["http://example.com", `http://example.com:${port}`, `https://127.0.0.1:${port}`, "null",
        `http://127.0.0.1:${port}.example.com`, "http://127.0.0.1"])
        assert.equal((await ask("/control", { ...upgrade, Origin: origin })).status, 403, origin);
    assert.equal((await ask("/control", { ...upgrade, Origin: `http://127.0.0.1:${port}` })).status, 101);
    assert.equal((await ask("/control", upgrade)).status, 101);
});

test("asks for a WebSocket where there is one", async () => {
    assert.equal((await ask("/control")).status, 426);
});

test("listens on this machine only", async () => {
    assert.match(preview.address, /^http:\/\/127\.0\.0\.1:\d+\/$/);
    const port = preview.port.toString(16).toUpperCase().padStart(4, "0");
    const listening = readFileSync("/proc/net/tcp", "utf8").split("\n").filter((line) => line.includes(`:${port} 00000000:0000 0A`));
    assert.deepEqual(listening.map((line) => line.trim().split(/\s+/)[1]), [`0100007F:${port}`]);
});

test("says in one line why it cannot start", () => {
    const run = (...options) => {
        const { status, stdout, stderr } = spawnSync(process.env.LYR_PROGRAM, ["preview", ...options], { encoding: "utf8" });
        assert.equal(stdout, "");
        return { status, stderr };
    };
    assert.deepEqual(run("--port", String(preview.port)), { status: 1,
        stderr: `lyr: port ${preview.port} cannot be had: Address already in use; without --port any free one is taken\n` });
    for (const options of [["--port", "0"], ["--port", "70000"], ["--root", "/none/phone"], ["--screen", "big"]]) {
        const { status, stderr } = run(...options);
        assert.equal(status, 2, options.join(" "));
        assert.match(stderr, /^lyr: .+\n$/);
    }
});

test("has a phone of its own and keeps to its root", async () => {
    const socket = await new Promise((resolve, reject) => {
        const asked = request({ host: "127.0.0.1", port: preview.port, path: "/control", headers: upgrade });
        asked.on("upgrade", (response, socket) => resolve(socket));
        asked.on("error", reject);
        asked.end();
    });
    const text = JSON.stringify({ jsonrpc: "2.0", id: 1, method: "phone.start", params: { root: "/tmp" } });
    socket.write(Buffer.concat([Buffer.from([0x81, 0x80 | text.length, 0, 0, 0, 0]), Buffer.from(text)]));
    let heard = "";
    for await (const part of socket) {
        heard += part.toString("latin1");
        if (heard.includes('"id":1'))
            break;
    }
    assert.match(heard, /"code":-32602,"message":"parameter \\"root\\" is not taken here: the preview has its own"/);
});
