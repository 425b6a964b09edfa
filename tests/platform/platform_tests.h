// Numbers of the test resources, for the resource compiler too.
#pragma once

#define kSoftKeyMenu 153
#define kDialog 206

#define kSaveCommand 40
#define kAboutCommand 41
#define kExportCommand 42
