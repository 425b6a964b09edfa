#pragma once

// Whether the platform is newer than Windows CE 3 and 4.20, which lack two of the system's colours,
// the exclusive use of the directional pad and the viewer of presentations.
[[nodiscard]] bool IsNewerThanCe420();
