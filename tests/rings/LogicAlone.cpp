// The whole logic with nothing but the headless controls: that this links is what the test is about.
int main() {}
