// SPDX-License-Identifier: Apache-2.0
// A program that does nothing: what starting and ending a process with these libraries costs.
int main()
{
    return 0;
}
