// The panel for what goes in and out: pictures, settings files, looks as links, fonts, wallpapers.
import { buttonRow, element, group, row } from "./elements.js";
import { propertyList } from "./propertylist.js";
import { fromLink, toLink } from "./looklink.js";

const settingsPath = "/var/mobile/Library/Preferences/com.ostrel.lyrprefs.plist";
const wallpaperPath = "/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg";
const fontFolder = "/Library/Application Support/LYRFont/";
const draft = "/var/mobile/Library/Caches/dropped.plist";
const megabyte = 1 << 20;
const widestWallpaper = 3000;

async function base64(blob) {
    const url = await new Promise((resolve, reject) => {
        const reader = new FileReader();
        reader.onload = () => resolve(reader.result);
        reader.onerror = () => reject(reader.error);
        reader.readAsDataURL(blob);
    });
    return url.slice(url.indexOf(",") + 1);
}

// A JPEG, whatever the picture was, and no larger than a screen needs.
async function wallpaperOf(file) {
    const picture = await createImageBitmap(file);
    const factor = Math.min(1, widestWallpaper / Math.max(picture.width, picture.height));
    if (factor === 1 && file.type === "image/jpeg")
        return file;
    const canvas = new OffscreenCanvas(Math.round(picture.width * factor), Math.round(picture.height * factor));
    canvas.getContext("2d").drawImage(picture, 0, 0, canvas.width, canvas.height);
    return canvas.convertToBlob({ type: "image/jpeg", quality: 0.92 });
}

function save(blob, name) {
    const link = element("a", { href: URL.createObjectURL(blob), download: name });
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 1000);
}

export class LookPanel {
    constructor({ connection, store, screen, text, report, offerUndo }) {
        Object.assign(this, { connection, store, screen, text, report, offerUndo });
        this.link = element("input", { type: "text", readOnly: true, id: "look-link", onfocus: () => this.link.select() });
        store.addEventListener("stored", () => this.#showLink().catch((error) => this.report(error.message)));
        document.addEventListener("dragover", (event) => event.preventDefault());
        document.addEventListener("drop", (event) => this.#drop(event));
        addEventListener("hashchange", () => this.takeLink());
    }

    groups() {
        const pick = element("input", { type: "file", id: "open-file", onchange: () => this.#takeAll([...pick.files]) });
        return [
            group(this.text("picture"), [buttonRow(this.text("savePicture"), () => this.#savePicture(), { id: "save-picture" })]),
            group(this.text("settingsFile"),
                [buttonRow(this.text("saveSettings"), () => this.#saveSettings(), { id: "save-settings" })]),
            group(this.text("link"), [row(this.text("link"), this.link),
                buttonRow(this.text("copyLink"), () => this.#copyLink(), { id: "copy-link" })], this.text("linkHint")),
            group(this.text("files"), [row(this.text("load"), pick)], this.text("filesHint")),
        ];
    }

    async #savePicture() {
        save(await this.screen.picture(), "lock.png");
    }

    #saveSettings() {
        const text = propertyList(this.store.values.settings);
        save(new Blob([text], { type: "application/x-plist" }), "com.ostrel.lyrprefs.plist");
    }

    async #showLink() {
        const { look } = await this.connection.call("look.get");
        this.link.value = `${location.origin}/${await toLink(look)}`;
    }

    async #copyLink() {
        await navigator.clipboard.writeText(this.link.value).catch(() => this.link.focus());
        this.report(this.text("copied"));
    }

    // The look in the address; it is not kept there, so that what is changed next counts.
    async takeLink() {
        if (!location.hash.startsWith("#look="))
            return;
        const { hash } = location;
        history.replaceState(null, "", location.pathname);
        try {
            await this.#useLook(await fromLink(hash));
            this.report(this.text("tookLook"));
        } catch (error) {
            this.report(this.text("badFile", this.text("link")) + error.message);
        }
    }

    async #useLook(look) {
        const { look: before } = await this.connection.call("look.get");
        const { missingFonts } = await this.connection.call("look.set", { look });
        this.offerUndo(() => this.connection.call("look.set", { look: before }));
        for (const font of missingFonts)
            this.report(this.text("missingFont", font));
    }

    #drop(event) {
        event.preventDefault();
        this.#takeAll([...event.dataTransfer.files]);
    }

    async #takeAll(files) {
        for (const file of files) {
            try {
                await this.#take(file);
            } catch (error) {
                this.report(this.text("badFile", file.name) + error.message);
            }
        }
    }

    async #take(file) {
        const kinds = [
            { names: /\.plist$/i, limit: megabyte, take: () => this.#takeSettings(file) },
            { names: /\.json$/i, limit: megabyte, take: () => this.#takeJson(file) },
            { names: /\.lyrlook$/i, limit: megabyte, take: async () => this.#useLook(JSON.parse(await file.text())) },
            { names: /\.(ttf|otf|ttc)$/i, limit: 32 * megabyte, take: () => this.#takeFont(file) },
            { names: /\.(jpe?g|png|webp)$/i, limit: 32 * megabyte, take: () => this.#takeWallpaper(file) },
        ];
        const kind = kinds.find(({ names }) => names.test(file.name));
        if (!kind)
            return this.report(this.text("unknownKind", file.name));
        if (file.size > kind.limit)
            return this.report(this.text("tooLarge", file.name));
        await kind.take();
        this.report(this.text("took", file.name));
    }

    #write(path, bytes) {
        return this.connection.call("file.write", { path, base64: bytes });
    }

    // The phone says whether it is a property list; only then it takes the place of the settings.
    async #takeSettings(file) {
        const bytes = await base64(file);
        await this.#write(draft, bytes);
        const { plist } = await this.connection.call("file.read", { path: draft });
        await this.connection.call("file.remove", { path: draft });
        if (!plist)
            throw new Error("no property list with a dictionary");
        await this.#write(settingsPath, bytes);
        await this.connection.call("notify.post", { name: "com.ostrel.lyrprefs/ReloadPrefs" });
    }

    async #takeJson(file) {
        await this.connection.call("settings.set", { values: JSON.parse(await file.text()) });
    }

    // The extension looks for fonts when it starts.
    async #takeFont(file) {
        await this.#write(fontFolder + file.name, await base64(file));
        await this.connection.call("notify.post", { name: "com.ostrel.lyr/respring" });
    }

    // The shell reads the wallpaper when the screen lights up.
    async #takeWallpaper(file) {
        await this.#write(wallpaperPath, await base64(await wallpaperOf(file)));
        await this.connection.call("phone.lock");
        await this.connection.call("phone.wake");
    }
}
