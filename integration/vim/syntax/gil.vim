" SPDX-License-Identifier: MIT
" Vim syntax file for GIL, the interface files of the Devguide editor.
if exists('b:current_syntax')
  finish
endif

syntax case match
syntax match gilAttribute /:[a-z_-]\+/
syntax match gilType /\%(:type\s\+\)\@<=:[a-z-]\+/
syntax match gilNumber /\<-*\d\+\>/
syntax keyword gilBoolean t nil
syntax keyword gilFunction CallFunction Show Hide Enable Disable
syntax keyword gilEvent AnyEvent Enter Exit Adjust Menu Notify Resize Select Repaint KeyPress DoubleClick
syntax match gilComment /;.*/
syntax match gilHeader /;GIL-[23].*/
syntax region gilString start=/"/ skip=/\\./ end=/"/

highlight default link gilAttribute Identifier
highlight default link gilType Type
highlight default link gilNumber Number
highlight default link gilBoolean Boolean
highlight default link gilFunction Function
highlight default link gilEvent Constant
highlight default link gilComment Comment
highlight default link gilHeader PreProc
highlight default link gilString String

let b:current_syntax = 'gil'
