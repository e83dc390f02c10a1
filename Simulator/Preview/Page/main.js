// Puts the page together once the phone has told which settings and languages it has.
import { Connection } from "./connection.js";
import { DevicePanel } from "./device.js";
import { Hand } from "./hand.js";
import { LookPanel } from "./look.js";
import { restart } from "./restart.js";
import { Screen } from "./screen.js";
import { bundle, loadPages, SettingsPanels } from "./settings.js";
import { Store } from "./store.js";
import { Tabs } from "./tabs.js";
import { chooseLanguage, readTexts, Texts } from "./texts.js";

const find = (id) => document.getElementById(id);

let texts;
let standing = {};

function report(message) {
    find("status").textContent = message;
}

function veil(message) {
    find("veil").hidden = !message;
    find("veil").textContent = message;
}

// The last thing that was replaced can be brought back.
function offerUndo(run) {
    const button = find("undo");
    button.hidden = false;
    button.textContent = texts.of("undo");
    button.onclick = async () => {
        button.hidden = true;
        await run().then(() => report(texts.of("undone")), (error) => report(error.message));
    };
}

// What became of the phone since it last said how it stands.
function takeStanding(next) {
    const before = standing;
    standing = next;
    veil(next.running ? "" : texts.of("gone", next.lastEnd ?? ""));
    document.body.classList.toggle("dark-phone", next.isLit === false);
    if (before.starts === undefined || next.starts === before.starts)
        return next.safeMode && before.starts === undefined ? report(texts.of("safeMode")) : undefined;
    if (next.safeMode)
        report(`${texts.of("crashed", next.lastEnd ?? "")} ${texts.of("safeMode")}`);
    else if (next.restarts > before.restarts)
        report(texts.of("restarted"));
}

// In safe mode nobody hears of a wanted restart; a new start has the extension again.
function post(connection, screen, name) {
    if (standing.safeMode)
        return restart(connection, standing.device, screen.size);
    return connection.call("notify.post", { name });
}

async function loadTexts(connection) {
    const { names } = await connection.call("file.list", { path: bundle });
    const present = names.filter((name) => name.endsWith(".json")).map((name) => name.slice(0, -5));
    const language = chooseLanguage(navigator.languages, present);
    const { json } = await connection.call("file.read", { path: `${bundle}${language}.json` });
    texts = new Texts(texts.own, texts.languages, language, json);
    Object.assign(document.documentElement, { lang: language, dir: texts.direction });
}

async function build(connection, screen, store) {
    await loadTexts(connection);
    const pages = await loadPages(connection);
    const text = texts.of;
    find("screen").setAttribute("aria-label", text("screen"));
    find("keys").textContent = text("keys");
    const tabs = new Tabs(find("tabs"), find("panels"), text("pages"));
    const settings = new SettingsPanels({
        store, ofPage: texts.ofPage, report, post: (name) => post(connection, screen, name), openPage: (name) => tabs.open(name, true),
    });
    for (const page of pages)
        tabs.add(page.name, texts.ofPage(page.title), settings.panel(page));
    const device = new DevicePanel({ connection, texts, report, screen });
    tabs.add("phone", text("phone"), device.groups());
    const look = new LookPanel({ connection, store, screen, text, report, offerUndo });
    tabs.add("look", text("look"), look.groups());
    new Hand({ screen, connection, cursor: find("cursor"), bar: find("hand"), text, report, standing: () => standing });
    connection.dispatchEvent(new CustomEvent("preview.standing", { detail: standing }));
    await store.read();
    report(text("connected"));
    await look.takeLink();
    document.body.dataset.ready = "";
}

async function start() {
    texts = await readTexts(navigator.languages);
    const connection = new Connection();
    const screen = new Screen(find("screen"), connection);
    const store = new Store(connection, report);
    let isBuilt = false;
    connection.addEventListener("preview.standing", ({ detail }) => takeStanding(detail));
    connection.addEventListener("lost", () => {
        standing = {};
        report(texts.of("lost"));
        veil(texts.of("lost"));
    });
    connection.addEventListener("open", async () => {
        veil("");
        if (isBuilt)
            return report(texts.of("connected"));
        isBuilt = true;
        await build(connection, screen, store).catch((error) => {
            isBuilt = false;
            report(error.message);
        });
    });
    report(texts.of("connecting"));
    connection.open();
}

start();
