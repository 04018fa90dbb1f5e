// The thread library makes a mutex at its first lock. That of the run time's emergency store of exceptions is
// first locked when an exception finds no memory: then there is none for the mutex either, the failing lock is
// an exception, and so on until the stack ends. So a mutex that is initialised in so many words, as that one is
// when the DLL is loaded, is made there and then; the linker sends the calls here (--wrap).

#include <pthread.h>

extern "C" int __real_pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes);

extern "C" int __wrap_pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) {
    const int outcome = __real_pthread_mutex_init(mutex, attributes);
    if (outcome == 0 && pthread_mutex_lock(mutex) == 0) {
        pthread_mutex_unlock(mutex);
    }
    return outcome;
}
