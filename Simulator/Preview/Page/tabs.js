// Panels of which one is seen, chosen by tabs: arrows go from tab to tab.
import { element } from "./elements.js";

export class Tabs {
    #tabs = [];

    constructor(bar, panels, label) {
        this.bar = bar;
        this.panels = panels;
        bar.setAttribute("aria-label", label);
        bar.addEventListener("keydown", (event) => this.#key(event));
    }

    add(name, title, content) {
        const panel = element("div", { id: `panel-${name}`, role: "tabpanel", "aria-labelledby": `tab-${name}` },
            element("h2", {}, title), ...content);
        const tab = element("button", { type: "button", id: `tab-${name}`, role: "tab",
            "aria-controls": panel.id, onclick: () => this.open(name) }, title);
        this.#tabs.push({ name, tab, panel });
        this.bar.append(tab);
        this.panels.append(panel);
        this.open(this.#tabs[0].name);
    }

    open(name, isFocused = false) {
        for (const { name: other, tab, panel } of this.#tabs) {
            const isOpen = other === name;
            tab.setAttribute("aria-selected", String(isOpen));
            tab.tabIndex = isOpen ? 0 : -1;
            panel.hidden = !isOpen;
            if (isOpen)
                tab.scrollIntoView({ block: "nearest", inline: "nearest" });
            if (isOpen && isFocused)
                tab.focus();
        }
    }

    #key(event) {
        const open = this.#tabs.findIndex(({ panel }) => !panel.hidden);
        const forward = document.dir === "rtl" ? "ArrowLeft" : "ArrowRight";
        const back = document.dir === "rtl" ? "ArrowRight" : "ArrowLeft";
        const to = { [forward]: open + 1, [back]: open - 1, Home: 0, End: -1 }[event.key];
        if (to === undefined)
            return;
        event.preventDefault();
        this.open(this.#tabs.at(to % this.#tabs.length).name, true);
    }
}
