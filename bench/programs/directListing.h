#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/* Loads a GenTL producer into this process and reads what a list of cameras needs, each text once and with
   one call. Gives the number of cameras, -1 when a call fails. Nothing is closed: a list is there before
   that. */
int listDirectly(const char *producer);

#ifdef __cplusplus
}
#endif
