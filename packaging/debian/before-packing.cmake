# Run by CPack between installing and packing.

# What lintian is asked to overlook goes with the package, and only with it.
set(overrides ${CPACK_TEMPORARY_DIRECTORY}/usr/share/lintian/overrides)
file(MAKE_DIRECTORY ${overrides})
file(COPY_FILE ${CPACK_VEYRAND_OVERRIDES} ${overrides}/veyrand)

# Every file gets the time that SOURCE_DATE_EPOCH names, for otherwise the package would tell when it was
# built.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec
    touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endif()
