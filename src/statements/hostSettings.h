#pragma once

namespace inkmacro {

/// What the host sets before a conversion and the conversion reads. The first ones are whole numbers of the system
/// services (CFxSystemServices::SetInt16), which are 0 as long as nobody has set them.

/// The language that the host records in, a code as ConvertRecording takes it. It decides whether the macro begins with
/// a byte-order mark and how types are named, so a host that has no reason to do otherwise sets the code of the
/// conversion. A repaired macro does not follow it.
inline constexpr char kRecordingLanguage[] = "RecordingLanguage";

/// When it is not 0, macro and project are written without the faults by which their language or host rejects or
/// misreads them.
inline constexpr char kRepairMacros[] = "RepairMacros";

/// When it is not 0, the journal of the conversion (CFxSystemServices::Notes) knows nothing of faults, which are what
/// takes a while to find. Losses are in it all the same.
inline constexpr char kIgnoreFaults[] = "IgnoreFaults";

/// When it is not 0, identifiers in macro and project are the same in each conversion, so that texts can be compared;
/// else they are new ones, which no other project has.
inline constexpr char kSameIdentifiers[] = "SameIdentifiers";

/// Key and name of the text in the registry (CFxRegistry::SetText) that says where the application is installed, with a
/// backslash at its end. The projects of both C++ languages look for its libraries below it.
inline constexpr char kInstallationKey[] = "SOFTWARE\\Velmorand\\Inkwright";
inline constexpr char kInstallDir[] = "InstallDir";

} // namespace inkmacro
