#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* Loads a GenTL producer into this process and reads everything that a list of cameras contains, each string
   with one call. Returns the number of cameras, or -1 if a call fails. Closes nothing, because the time to
   close is not measured. */
int listDirectly(const char *producer);

#ifdef __cplusplus
}
#endif
