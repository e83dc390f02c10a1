// The page's own texts. What the settings pages have a text for is taken from there, in the same language.

const own = {
    en: {
        connected: "Connected", connecting: "Connecting …", lost: "Connection lost. Trying again …",
        safeMode: "Safe mode: the extension is off after a crash.", restarted: "The home screen was restarted.",
        crashed: "The phone crashed and came back: *", gone: "The phone has stopped: *",
        noTouch: "This phone does not take touches yet.",
        keys: "Escape: side button. Space: wake. On the screen, arrows move a finger and Enter puts it down.",
        hand: "Buttons of the phone", screen: "Screen of the phone", pages: "Pages",
        sideButton: "Side button", unlock: "Unlock", coverSheet: "Cover sheet", touchAndHold: "Touch and hold",
        phone: "Phone", look: "Look", level: "Level", cable: "On the cable", lowPower: "Low Power Mode",
        weather: "Weather", high: "High", low: "Low", none: "None", events: "Events", addEvent: "Add an event",
        remove: "Remove *", allDay: "All day", eventTitle: "Title", start: "Start",
        surroundings: "Time and place", timeNow: "Time", timeZone: "Time zone", locale: "Region", language: "Language",
        appearance: "Appearance", style: "Appearance", light: "Light", dark: "Dark", screenSize: "Screen",
        landscape: "Landscape", timer: "Timer, seconds", startTimer: "Start the timer", stopTimer: "Stop the timer",
        picture: "Picture", savePicture: "Save a picture", settingsFile: "Settings file",
        saveSettings: "Save the settings", load: "Open a file", link: "Link",
        linkHint: "The link carries the settings and the colours.", copyLink: "Copy the link", copied: "Link copied.",
        files: "Files", filesHint: "Or drop it anywhere on this page: settings (plist, JSON), a look, a font (TTF, OTF), a wallpaper (JPEG, PNG).",
        took: "Taken over: *", tookLook: "The look of the link is in use.", undo: "Undo", undone: "Undone.",
        tooLarge: "* is too large.", unknownKind: "* is no settings file, look, font or picture.",
        badFile: "* cannot be used: ", missingFont: "The look uses the font *, which this phone lacks.",
    },
    de: {
        connected: "Verbunden", connecting: "Verbinden …", lost: "Verbindung verloren. Neuer Versuch …",
        safeMode: "Abgesicherter Modus: Die Erweiterung ist nach einem Absturz aus.",
        restarted: "Der Home-Bildschirm wurde neu gestartet.",
        crashed: "Das Telefon ist abgestürzt und wieder da: *", gone: "Das Telefon ist aus: *",
        noTouch: "Dieses Telefon nimmt noch keine Berührungen an.",
        keys: "Escape: Seitentaste. Leertaste: aufwecken. Auf dem Bildschirm bewegen Pfeile einen Finger, Enter setzt ihn auf.",
        hand: "Tasten des Telefons", screen: "Bildschirm des Telefons", pages: "Seiten",
        sideButton: "Seitentaste", unlock: "Entsperren", coverSheet: "Mitteilungen", touchAndHold: "Gedrückt halten",
        phone: "Telefon", look: "Aussehen", level: "Ladung", cable: "Am Kabel", lowPower: "Stromsparmodus",
        weather: "Wetter", high: "Höchstwert", low: "Tiefstwert", none: "Ohne", events: "Termine",
        addEvent: "Termin hinzufügen", remove: "* entfernen", allDay: "Ganztägig", eventTitle: "Titel", start: "Beginn",
        surroundings: "Zeit und Ort", timeNow: "Uhrzeit", timeZone: "Zeitzone", locale: "Region", language: "Sprache",
        appearance: "Darstellung", style: "Darstellung", light: "Hell", dark: "Dunkel", screenSize: "Bildschirm",
        landscape: "Querformat", timer: "Timer, Sekunden", startTimer: "Timer starten", stopTimer: "Timer anhalten",
        picture: "Bild", savePicture: "Bild sichern", settingsFile: "Einstellungsdatei",
        saveSettings: "Einstellungen sichern", load: "Datei öffnen", link: "Link",
        linkHint: "Der Link enthält die Einstellungen und die Farben.", copyLink: "Link kopieren", copied: "Link kopiert.",
        files: "Dateien", filesHint: "Oder irgendwo auf dieser Seite ablegen: Einstellungen (plist, JSON), ein Aussehen, eine Schrift (TTF, OTF), ein Hintergrundbild (JPEG, PNG).",
        took: "Übernommen: *", tookLook: "Das Aussehen aus dem Link ist in Gebrauch.", undo: "Zurücknehmen",
        undone: "Zurückgenommen.", tooLarge: "* ist zu groß.",
        unknownKind: "* ist keine Einstellungsdatei, kein Aussehen, keine Schrift und kein Bild.",
        badFile: "* ist nicht zu gebrauchen: ", missingFont: "Das Aussehen verwendet die Schrift *, die diesem Telefon fehlt.",
    },
};

const rightToLeft = ["ar", "he"];

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

export class Texts {
    constructor(language, ofPages) {
        this.language = language;
        this.ofPages = ofPages;
    }

    static get languages() {
        return Object.keys(own);
    }

    get direction() {
        return rightToLeft.includes(this.language) ? "rtl" : "ltr";
    }

    // A text by its key; `value` takes the place of its star.
    of = (key, value) => {
        const text = own[this.language]?.[key] ?? this.ofPages[key] ?? own.en[key] ?? key;
        return value === undefined ? text : text.replace("*", value);
    };

    // A text of the settings pages.
    ofPage = (key, value) => {
        const text = this.ofPages[key] ?? key;
        return value === undefined ? text : text.replace("*", value);
    };
}
