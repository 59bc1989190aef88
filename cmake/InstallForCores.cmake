# What a core that is built apart from this project needs, and nothing else: `cmake --install BUILD --component
# core` puts the headers of the contract and its helpers, the helpers' library and a CMake package into the prefix.
# There, find_package(ZorvaKestrelCore) offers the target ZorvaKestrel::zk_core.

install(DIRECTORY core util DESTINATION include/zorva_kestrel COMPONENT core FILES_MATCHING PATTERN "*.h"
    PATTERN internal EXCLUDE)
install(TARGETS zk_util zk_core EXPORT ZorvaKestrelCore ARCHIVE DESTINATION lib COMPONENT core)
install(EXPORT ZorvaKestrelCore NAMESPACE ZorvaKestrel:: FILE ZorvaKestrelCoreConfig.cmake
    DESTINATION lib/cmake/ZorvaKestrelCore COMPONENT core)
