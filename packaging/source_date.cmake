# Read by cpack: what it packs carries the time of the release, unless who packs it has named another one.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    set(ENV{SOURCE_DATE_EPOCH} ${CPACK_RELEASE_SECONDS})
endif()
