inline void pause() {
  asm("pause");
}
