#pragma once

/// `CoreExport` marks what the host offers to plug-in libraries.
/// Linux builds hide every symbol that is not marked. For Windows builds it is empty: the host library
/// exports all its symbols and plug-ins import them automatically, data included.
#if defined(_WIN32)
#define CoreExport
#else
#define CoreExport __attribute__((visibility("default")))
#endif
