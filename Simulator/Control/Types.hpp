// The kinds of values that the protocol's methods take.
#pragma once

#include "Simulator/Control/Parameters.hpp"

namespace Simulator::Control {

Type anything();
Type text();
/// A string that a property list can hold.
Type storedText();
Type nonEmptyText();
Type boolean();
Type number(double least, double most);
Type oneOf(std::vector<std::string> words);
/// A string, a number or a boolean: what a setting holds.
Type scalar();
/// Anything that a property list can hold.
Type propertyList();
Type base64();

/// "2020-11-15T21:41:00", a date that exists.
Type localTime();
Type timeZone();
Type locale();

/// An absolute path on the phone.
Type phonePath();
Type hostFile(const std::string& what);
Type hostFolder();
/// Or one that is not there yet, in a folder that is.
Type hostFolderToBe();
/// An existing file or folder.
Type hostPath();
/// A path; what is wrong with it, if anything, its OutputFile says.
Type hostDestination();

/// [x, y] in points of the screen, beside it as well.
Type point();

Type object(Schema members);
/// Of these members exactly one is there.
Type oneMemberOf(Schema members);
Type mapOf(Type names, Type values);
Type listOf(Type elements);
Type orNull(Type);

}
