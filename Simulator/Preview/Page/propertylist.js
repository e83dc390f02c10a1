// Values as an XML property list.

function escaped(text) {
    return text.replaceAll("&", "&amp;").replaceAll("<", "&lt;").replaceAll(">", "&gt;");
}

function xml(value, indent) {
    if (typeof value === "boolean")
        return `${indent}<${value}/>`;
    if (typeof value === "number")
        return Number.isInteger(value) ? `${indent}<integer>${value}</integer>` : `${indent}<real>${value}</real>`;
    if (typeof value === "string")
        return `${indent}<string>${escaped(value)}</string>`;
    if (Array.isArray(value))
        return [`${indent}<array>`, ...value.map((one) => xml(one, `${indent}\t`)), `${indent}</array>`].join("\n");
    const members = Object.keys(value).sort().flatMap((key) =>
        [`${indent}\t<key>${escaped(key)}</key>`, xml(value[key], `${indent}\t`)]);
    return [`${indent}<dict>`, ...members, `${indent}</dict>`].join("\n");
}

export function propertyList(value) {
    return ['<?xml version="1.0" encoding="UTF-8"?>',
        '<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">',
        '<plist version="1.0">', xml(value, ""), "</plist>", ""].join("\n");
}
