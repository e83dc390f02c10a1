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
    call    lyr_message_lookup@PLT
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
#elif defined(__aarch64__)
    .text

// As above; where a large result goes is said in x8, so one function serves every kind of result.
    .globl  lyr_objc_msgSend
    .hidden lyr_objc_msgSend
    .type   lyr_objc_msgSend, %function
lyr_objc_msgSend:
    .cfi_startproc
    cbz     x0, 1f
    stp     x29, x30, [sp, -224]!
    .cfi_def_cfa_offset 224
    .cfi_offset x29, -224
    .cfi_offset x30, -216
    mov     x29, sp
    stp     x0, x1, [sp, 16]
    stp     x2, x3, [sp, 32]
    stp     x4, x5, [sp, 48]
    stp     x6, x7, [sp, 64]
    str     x8, [sp, 80]
    stp     q0, q1, [sp, 96]
    stp     q2, q3, [sp, 128]
    stp     q4, q5, [sp, 160]
    stp     q6, q7, [sp, 192]
    bl      lyr_message_lookup
    mov     x16, x0
    ldp     x0, x1, [sp, 16]
    ldp     x2, x3, [sp, 32]
    ldp     x4, x5, [sp, 48]
    ldp     x6, x7, [sp, 64]
    ldr     x8, [sp, 80]
    ldp     q0, q1, [sp, 96]
    ldp     q2, q3, [sp, 128]
    ldp     q4, q5, [sp, 160]
    ldp     q6, q7, [sp, 192]
    ldp     x29, x30, [sp], 224
    .cfi_restore x29
    .cfi_restore x30
    .cfi_def_cfa_offset 0
    br      x16
1:  mov     x1, 0
    movi    v0.2d, 0
    movi    v1.2d, 0
    movi    v2.2d, 0
    movi    v3.2d, 0
    ret
    .cfi_endproc
    .size   lyr_objc_msgSend, . - lyr_objc_msgSend
#endif
    .section .note.GNU-stack, "", %progbits
