/*
 * Translates an IDEX file to NEN1878 with the library, in C:
 *
 *     korvande-example-c voorbeeld.nst straat.idx straat.sfn
 */
#include <korvande.h>
#include <stdio.h>

int main(int count, char** words) {
    korvande_handle* handle = NULL;
    int status = KORVANDE_WRONG_USE;
    if (count != 4) return status;
    status = korvande_open(words[1], &handle);
    if (status == KORVANDE_DONE) {
        status = korvande_translate(handle, "idex-nen1878", words[2], words[3], NULL, NULL, NULL);
    }
    if (status != KORVANDE_DONE) fprintf(stderr, "%s\n", korvande_last_error(handle));
    korvande_close(handle);
    return status;
}
