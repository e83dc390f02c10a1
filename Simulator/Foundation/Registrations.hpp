// One function for each mended subject, named after the class; Foundation.cpp calls them in order.
#pragma once

namespace Simulator {

void registerDispatch();
void registerNSBundle();
void registerNSCalendar();
void registerNSData();
void registerNSDate();
void registerNSDateFormatter();
void registerNSFileManager();
void registerNSJSONSerialization();
void registerNSLocale();
void registerNSLog();
void registerNSNumber();
void registerNSObject();
void registerNSPropertyList();
void registerNSString();
void registerNSTimeZone();
void registerNSTimer();

}
