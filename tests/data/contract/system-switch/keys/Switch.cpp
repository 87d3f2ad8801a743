#ifdef _WIN32
#endif
