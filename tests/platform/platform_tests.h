// Numbers of the test resources, for the resource compiler too.
#pragma once

#define kSoftKeyMenu 153
#define kBarResource 174
#define kTruncatedBarResource 175
#define kWrongBarResource 176
#define kMissingResource 199
#define kDialog 206

#define kSaveCommand 40
#define kAboutCommand 41
#define kExportCommand 42
#define kImportCommand 43
#define kResetCommand 44
#define kMoreCommand 45
#define kIconCommand 46
#define kDialogEdit 47

#define kResetText 61
#define kMoreText 62
