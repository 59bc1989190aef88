#pragma once

/// Release, programming interface number and kit revision of the host edition that these headers stand in
/// for.
#define MAX_RELEASE 12000
#define MAX_API_NUM 33
#define MAX_SDK_REV 0
