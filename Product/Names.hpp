// The names by which the parts of the product know one another on a phone: stores, notifications, files.
// They are literals, so that what is made of them is one as well.
#pragma once

/// The store of the settings, and what is posted when one of them has changed.
#define LYR_SETTINGS_STORE "com.ostrel.lyrprefs"
#define LYR_SETTINGS_CHANGED LYR_SETTINGS_STORE "/ReloadPrefs"
/// The store of the colours, and what is posted when one of them has changed.
#define LYR_COLOUR_STORE "com.ostrel.colorslyr"
#define LYR_COLOURS_CHANGED LYR_COLOUR_STORE "/ReloadPrefs"
/// What the settings pages post for a new start of the shell.
#define LYR_RESPRING "com.ostrel.lyr/respring"

// What is the user's lies in one place on every phone.
#define LYR_PREFERENCES "/var/mobile/Library/Preferences/"
#define LYR_SETTINGS_FILE LYR_PREFERENCES LYR_SETTINGS_STORE ".plist"
#define LYR_COLOUR_FILE LYR_PREFERENCES LYR_COLOUR_STORE ".plist"
#define LYR_WALLPAPER "/var/mobile/Library/SpringBoard/LockBackgroundThumbnail.jpg"

// What is installed lies under the phone's own prefix.
#define LYR_EXTENSIONS "/Library/MobileSubstrate/DynamicLibraries/"
#define LYR_RESOURCES "/Library/Application Support/lyr.bundle/"
#define LYR_FONTS "/Library/Application Support/LYRFont"
#define LYR_SETTINGS_PAGES "/Library/PreferenceBundles/LYRPrefs.bundle/"
