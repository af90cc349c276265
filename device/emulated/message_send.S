// SPDX-License-Identifier: MIT
//
// objc_msgSend and objc_msgSendSuper, which the runtime on Linux does not have: they keep the
// message's arguments, ask the runtime for the implementation, and go on there as if the sender had
// called it. Arguments are in x0 to x7 and q0 to q7, and x8 says where a large result goes.
// Exceptions pass through: the frame of the look-up is described, and gone before the method runs.

    .macro keepArguments
    stp     x29, x30, [sp, #-0xe0]!
    .cfi_def_cfa_offset 0xe0
    .cfi_offset 29, -0xe0
    .cfi_offset 30, -0xd8
    mov     x29, sp
    stp     x0, x1, [sp, #0x10]
    stp     x2, x3, [sp, #0x20]
    stp     x4, x5, [sp, #0x30]
    stp     x6, x7, [sp, #0x40]
    str     x8, [sp, #0x50]
    stp     q0, q1, [sp, #0x60]
    stp     q2, q3, [sp, #0x80]
    stp     q4, q5, [sp, #0xa0]
    stp     q6, q7, [sp, #0xc0]
    .endm

    .macro restoreArguments
    ldp     x0, x1, [sp, #0x10]
    ldp     x2, x3, [sp, #0x20]
    ldp     x4, x5, [sp, #0x30]
    ldp     x6, x7, [sp, #0x40]
    ldr     x8, [sp, #0x50]
    ldp     q0, q1, [sp, #0x60]
    ldp     q2, q3, [sp, #0x80]
    ldp     q4, q5, [sp, #0xa0]
    ldp     q6, q7, [sp, #0xc0]
    ldp     x29, x30, [sp], #0xe0
    .cfi_restore 29
    .cfi_restore 30
    .cfi_def_cfa_offset 0
    .endm

    .macro beginFunction name
    .text
    .globl  \name
    .hidden \name
    .type   \name, %function
\name:
    .cfi_startproc
    .endm

// x0: the receiver, x1: the selector. Nil answers the zero of whatever is returned in registers.
    beginFunction phone_objc_msgSend
    cbz     x0, 1f
    keepArguments
    bl      objc_msg_lookup
    mov     x16, x0
    restoreArguments
    br      x16
1:  mov     x1, #0
    movi    d0, #0
    movi    d1, #0
    movi    d2, #0
    movi    d3, #0
    ret
    .cfi_endproc

// x0: the address of receiver and class, x1: the selector. The method is handed the receiver.
    beginFunction phone_objc_msgSendSuper
    keepArguments
    bl      objc_msg_lookup_super
    mov     x16, x0
    restoreArguments
    ldr     x0, [x0]
    br      x16
    .cfi_endproc

    .section .note.GNU-stack, "", %progbits
