# Puts the default macros where the operator's are missing: cmake -DSLOZKA=data -P chybejici_makra.cmake
if(NOT EXISTS ${SLOZKA}/tesk.mak)
  file(COPY_FILE ${SLOZKA}/vychozi.mak ${SLOZKA}/tesk.mak)
endif()
