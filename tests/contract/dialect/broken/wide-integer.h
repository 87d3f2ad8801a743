inline __int128 wide(int value) {
  return value;
}
