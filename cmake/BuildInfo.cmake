# Writes buildinfo.h from what git knows of the sources; leaves the file alone when nothing changed.
function(git variable)
  execute_process(COMMAND git -C "${SOURCE}" ${ARGN} OUTPUT_VARIABLE text ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

git(revision rev-parse HEAD)
git(tag describe --tags --always)
git(refspec rev-parse --symbolic-full-name HEAD)
git(changes status --porcelain --untracked-files=no)
if(changes STREQUAL "")
  set(changes "no")
else()
  set(changes "yes")
endif()

set(text "#pragma once

#define NIVRA_VERSION \"${VERSION}\"
#define NIVRA_GIT_REVISION \"${revision}\"
#define NIVRA_GIT_TAG \"${tag}\"
#define NIVRA_GIT_REFSPEC \"${refspec}\"
#define NIVRA_GIT_CHANGES \"${changes}\"
")
set(present "")
if(EXISTS "${OUTPUT}")
  file(READ "${OUTPUT}" present)
endif()
if(NOT present STREQUAL text)
  file(WRITE "${OUTPUT}" "${text}")
endif()
