// In a test program that is not said to start threads, and so never meets the sanitizer for races, this stands before
// the system's own operation: the first thread ends the program.
#include <pthread.h>

#include <cstdio>
#include <cstdlib>

extern "C" int pthread_create(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*) {
    std::fputs("A thread starts here, so the corvex_test of this program wants the word THREADS.\n", stderr);
    std::abort();
}
