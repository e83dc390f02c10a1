// objc_msgSend as the phone's compiler calls it on this processor: the arguments lie where the method expects them, so
// they are kept while the method is looked up, and the method is jumped to. A message to nil answers zero.
#if defined(__x86_64__)
    .intel_syntax noprefix
    .text

// A send whose receiver and selector are the arguments in these registers; nil leads to the label.
.macro define_send name, receiver, selector, onNil
    .globl  \name
    .hidden \name
    .type   \name, @function
\name:
    .cfi_startproc
    test    \receiver, \receiver
    jz      \onNil
    push    rbp
    .cfi_def_cfa_offset 16
    .cfi_offset rbp, -16
    mov     rbp, rsp
    .cfi_def_cfa_register rbp
    sub     rsp, 192
    mov     [rsp], rdi
    mov     [rsp + 8], rsi
    mov     [rsp + 16], rdx
    mov     [rsp + 24], rcx
    mov     [rsp + 32], r8
    mov     [rsp + 40], r9
    mov     [rsp + 48], rax
    movaps  [rsp + 64], xmm0
    movaps  [rsp + 80], xmm1
    movaps  [rsp + 96], xmm2
    movaps  [rsp + 112], xmm3
    movaps  [rsp + 128], xmm4
    movaps  [rsp + 144], xmm5
    movaps  [rsp + 160], xmm6
    movaps  [rsp + 176], xmm7
    mov     rcx, \selector
    mov     rdi, \receiver
    mov     rsi, rcx
    call    objc_msg_lookup@PLT
    mov     r11, rax
    mov     rdi, [rsp]
    mov     rsi, [rsp + 8]
    mov     rdx, [rsp + 16]
    mov     rcx, [rsp + 24]
    mov     r8, [rsp + 32]
    mov     r9, [rsp + 40]
    mov     rax, [rsp + 48]
    movaps  xmm0, [rsp + 64]
    movaps  xmm1, [rsp + 80]
    movaps  xmm2, [rsp + 96]
    movaps  xmm3, [rsp + 112]
    movaps  xmm4, [rsp + 128]
    movaps  xmm5, [rsp + 144]
    movaps  xmm6, [rsp + 160]
    movaps  xmm7, [rsp + 176]
    leave
    .cfi_def_cfa rsp, 8
    jmp     r11
    .cfi_endproc
    .size   \name, . - \name
.endm

    define_send lyr_objc_msgSend, rdi, rsi, 1f
1:  xor     eax, eax
    xor     edx, edx
    pxor    xmm0, xmm0
    pxor    xmm1, xmm1
    ret

// The result's address comes first, and is the result; the caller has cleared what lies there.
    define_send lyr_objc_msgSend_stret, rsi, rdx, 2f
2:  mov     rax, rdi
    ret
#endif
    .section .note.GNU-stack, "", @progbits
