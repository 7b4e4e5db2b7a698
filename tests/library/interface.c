/* The library as a program in C sees it: interface SAMPLES-FOLDER SCRATCH-FOLDER. */
#include <korvande.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

#define EXPECT(condition) Expect((condition) != 0, #condition, __LINE__)

static void Expect(int holds, const char* condition, int line) {
    if (holds) return;
    fprintf(stderr, "interface.c:%d: not so: %s\n", line, condition);
    ++failures;
}

enum { longest = 1000 };

static char table[longest];
static char street[longest];
static char output[longest];

static void MakeNames(const char* samples, const char* scratch) {
    snprintf(table, longest, "%s/voorbeeld.nst", samples);
    snprintf(street, longest, "%s/straat.idx", samples);
    snprintf(output, longest, "%s/straat.sfn", scratch);
}

/* The bytes of a file; -1 when there is none. */
static long SizeOf(const char* name) {
    FILE* file = fopen(name, "rb");
    long size = -1;
    if (file == NULL) return size;
    if (fseek(file, 0, SEEK_END) == 0) size = ftell(file);
    fclose(file);
    return size;
}

static void TheLibraryIsOfTheHeadersInterface(void) {
    EXPECT(korvande_interface() == KORVANDE_INTERFACE);
    EXPECT(strlen(korvande_version()) > 5);
    EXPECT(strchr(korvande_version(), '.') != NULL);
}

static void ADrawingIsTranslatedAndChecked(void) {
    korvande_handle* handle = NULL;
    EXPECT(korvande_open(table, &handle) == KORVANDE_DONE);
    EXPECT(handle != NULL);
    EXPECT(korvande_result(handle) == NULL);
    remove(output);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, NULL, NULL) == KORVANDE_DONE);
    EXPECT(SizeOf(output) > 10000);
    EXPECT(strcmp(korvande_last_error(handle), "") == 0);
    EXPECT(strstr(korvande_result(handle), "\"afloop\":\"vertaald\"") != NULL);
    EXPECT(korvande_check(handle, output, NULL, NULL) == KORVANDE_WITH_ERRORS);
    EXPECT(strstr(korvande_result(handle), "\"formaat\":\"NEN1878\"") != NULL);
    EXPECT(strlen(korvande_last_error(handle)) > 10);
    korvande_close(handle);
}

static void WithoutATableTheDefaultsHold(void) {
    korvande_handle* handle = NULL;
    EXPECT(korvande_open(NULL, &handle) == KORVANDE_DONE);
    remove(output);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, NULL, NULL) == KORVANDE_DONE);
    EXPECT(SizeOf(output) > 10000);
    korvande_close(handle);
}

static void WhatIsMissingIsAWrongUse(void) {
    korvande_handle* handle = NULL;
    EXPECT(korvande_open(table, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_open("", &handle) == KORVANDE_WRONG_USE);
    EXPECT(strlen(korvande_last_error(handle)) > 5);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    korvande_close(handle);
    EXPECT(korvande_translate(NULL, "idex-nen1878", street, output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_check(NULL, street, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_result(NULL) == NULL);
    EXPECT(strcmp(korvande_last_error(NULL), "Onvoldoende geheugen") == 0);
    korvande_close(NULL);
}

static void ArgumentsThatAreNoneAreAWrongUse(void) {
    korvande_handle* handle = NULL;
    EXPECT(korvande_open(table, &handle) == KORVANDE_DONE);
    remove(output);
    EXPECT(korvande_translate(handle, NULL, street, output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "dwg-dxf", street, output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(strstr(korvande_last_error(handle), "dwg-dxf") != NULL);
    EXPECT(korvande_result(handle) == NULL);
    EXPECT(korvande_translate(handle, "idex-nen1878", NULL, output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "idex-nen1878", "", output, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, "", NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, "", NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, street, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, table, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(korvande_check(handle, NULL, NULL, NULL) == KORVANDE_WRONG_USE);
    EXPECT(SizeOf(output) == -1);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, NULL, NULL) == KORVANDE_DONE);
    korvande_close(handle);
}

/* Options of a later interface, which has more of them. */
struct later_options {
    korvande_options known;
    int64_t unknown;
};

static void OptionsOfAnotherSizeAreGoodWhileTheRestIsZero(void) {
    struct later_options later = {KORVANDE_OPTIONS_NONE, 0};
    korvande_options none = KORVANDE_OPTIONS_NONE;
    korvande_callbacks nobody = KORVANDE_CALLBACKS_NONE;
    korvande_handle* handle = NULL;
    EXPECT(korvande_open(table, &handle) == KORVANDE_DONE);
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, &none, &nobody) == KORVANDE_DONE);
    later.known.size = sizeof later;
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, &later.known, NULL) == KORVANDE_DONE);
    later.unknown = 1;
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, &later.known, NULL) == KORVANDE_WRONG_USE);
    none.size = sizeof none - 1;
    EXPECT(korvande_translate(handle, "idex-nen1878", street, output, NULL, &none, NULL) == KORVANDE_WRONG_USE);
    none.size = 0;
    EXPECT(korvande_check(handle, street, &none, NULL) == KORVANDE_WRONG_USE);
    none.size = (size_t)-1;
    EXPECT(korvande_check(handle, street, &none, NULL) == KORVANDE_WRONG_USE);
    nobody.size = sizeof nobody - sizeof(void*);
    EXPECT(korvande_check(handle, street, NULL, &nobody) == KORVANDE_WRONG_USE);
    korvande_close(handle);
}

/* What the callbacks were told. */
struct told {
    korvande_handle* handle;
    int steps;
    int ends;
    int wrong;
    int asked;
    int refused;
    int64_t done;
    int64_t total;
};

static void Progress(void* context, const char* name, int64_t done, int64_t total) {
    struct told* told = context;
    if (name == NULL || total < 1 || done < 0 || done > total) ++told->wrong;
    if (done == 0) {
        /* The step before has ended. */
        if (told->steps > 0 && told->done != told->total) ++told->wrong;
        ++told->steps;
    } else if (total != told->total || done < told->done) {
        ++told->wrong;
    }
    if (done == total) ++told->ends;
    told->done = done;
    told->total = total;
}

static int GoesOn(void* context) {
    struct told* told = context;
    ++told->asked;
    /* A handle that is at work is left alone. */
    if (korvande_check(told->handle, street, NULL, NULL) == KORVANDE_WRONG_USE) ++told->refused;
    korvande_close(told->handle);
    return 0;
}

static void ProgressGrowsAndEnds(void) {
    struct told told = {NULL, 0, 0, 0, 0, 0, 0, 0};
    korvande_callbacks callbacks = KORVANDE_CALLBACKS_NONE;
    EXPECT(korvande_open(table, &told.handle) == KORVANDE_DONE);
    callbacks.context = &told;
    callbacks.progress = Progress;
    callbacks.should_cancel = GoesOn;
    EXPECT(korvande_translate(told.handle, "idex-nen1878", street, output, NULL, NULL, &callbacks) == KORVANDE_DONE);
    EXPECT(told.steps >= 4);
    EXPECT(told.ends == told.steps);
    EXPECT(told.wrong == 0);
    EXPECT(told.done == told.total);
    EXPECT(told.asked >= told.steps);
    EXPECT(told.refused == told.asked);
    korvande_close(told.handle);
}

int main(int count, char** words) {
    if (count != 3) return 2;
    MakeNames(words[1], words[2]);
    TheLibraryIsOfTheHeadersInterface();
    ADrawingIsTranslatedAndChecked();
    WithoutATableTheDefaultsHold();
    WhatIsMissingIsAWrongUse();
    ArgumentsThatAreNoneAreAWrongUse();
    OptionsOfAnotherSizeAreGoodWhileTheRestIsZero();
    ProgressGrowsAndEnds();
    if (failures > 0) return 1;
    printf("the interface from C: as promised\n");
    return 0;
}
