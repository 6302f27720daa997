#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* Loads a GenTL producer into this process and reads everything that a list of cameras contains, each text
   with one call. Returns the number of cameras; -1 if a call fails. Closes nothing, because closing is not
   part of listing. */
int listDirectly(const char *producer);

#ifdef __cplusplus
}
#endif
