@ The entry point. The system keeps the stack aligned to 4 bytes, the compiler expects 8.
    .syntax unified
    .arm
    .section .text.entry, "ax", %progbits
    .global WinMainCRTStartup
    .type WinMainCRTStartup, %function
WinMainCRTStartup:
    push {r4, lr}
    mov r4, sp
    bic sp, sp, #7
    bl StartProgram
    mov sp, r4
    pop {r4, lr}
    bx lr
    .size WinMainCRTStartup, . - WinMainCRTStartup
