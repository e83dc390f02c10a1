// Which language the page speaks: its own texts, a file a language, and those of the settings pages.

const read = async (name) => (await fetch(name)).json();

// The best of the languages that there are for what the browser prefers.
export function chooseLanguage(wanted, present) {
    for (const language of wanted.map((name) => name.toLowerCase())) {
        const base = language.split("-")[0];
        const chinese = /hant|tw|hk|mo/.test(language) ? "zh-hant" : "zh-hans";
        for (const candidate of [language, base === "zh" ? chinese : base])
            if (present.includes(candidate))
                return candidate;
    }
    return "en";
}

// The page's own texts in the best language that it has.
export async function readTexts(wanted) {
    const languages = await read("languages.json");
    const best = chooseLanguage(wanted, languages.map(({ name }) => name));
    return new Texts(await read(`text.${best}.json`), languages);
}

export class Texts {
    constructor(own, languages, language = "en", ofPages = {}) {
        Object.assign(this, { own, languages, language, ofPages });
    }

    get direction() {
        return this.languages.some(({ name, writtenFromRight }) => name === this.language && writtenFromRight)
            ? "rtl" : "ltr";
    }

    // A text of the page by its key, or of the settings pages; `value` takes the place of its star.
    of = (key, value) => filled(this.own[key] ?? this.ofPages[key] ?? key, value);
    ofPage = (key, value) => filled(this.ofPages[key] ?? key, value);
}

function filled(text, value) {
    return value === undefined ? text : text.replace("*", () => value);
}
