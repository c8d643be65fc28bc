// The program to which the precompiled headers of the tests belong.
int main()
{
}
