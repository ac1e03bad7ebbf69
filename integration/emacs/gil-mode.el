;;; gil-mode.el --- Major modes for GIL and UIL files  -*- lexical-binding: t -*-
;; SPDX-License-Identifier: MIT

;;; Commentary:
;; GIL is the format in which the Devguide editor saves interfaces; UIL is what pandrel writes.
;; (require 'gil-mode) turns the modes on: gil-mode by a file's first line, uil-mode by the name.

;;; Code:

(defvar gil-mode-syntax-table
  (let ((table (make-syntax-table)))
    (modify-syntax-entry ?\; "<" table)
    (modify-syntax-entry ?\n ">" table)
    (modify-syntax-entry ?- "_" table)
    (modify-syntax-entry ?_ "_" table)
    table)
  "GIL comments run from a semicolon to the end of the line.")

(defvar gil-mode-font-lock
  '(("^\\s-*:type\\s-+\\(:[a-z-]+\\)" 1 font-lock-type-face)
    (":[a-z_-]+" . font-lock-keyword-face)
    ("\\_<\\(t\\|nil\\)\\_>" . font-lock-constant-face)
    ("\\_<\\(CallFunction\\|Show\\|Hide\\|Enable\\|Disable\\)\\_>" . font-lock-function-name-face))
  "What is highlighted in a GIL file.")

;;;###autoload
(define-derived-mode gil-mode prog-mode "GIL"
  "Major mode for the interface files of the Devguide editor."
  (setq-local comment-start "; ")
  (setq-local indent-tabs-mode t)
  (setq-local font-lock-defaults '(gil-mode-font-lock)))

(defvar uil-mode-syntax-table
  (let ((table (make-syntax-table)))
    (modify-syntax-entry ?! "<" table)
    (modify-syntax-entry ?\n ">" table)
    (modify-syntax-entry ?_ "_" table)
    table)
  "UIL comments run from an exclamation mark to the end of the line.")

(defvar uil-mode-font-lock
  `((,(regexp-opt '("module" "names" "procedure" "procedures" "object" "controls" "arguments"
                    "callbacks" "unmanaged" "end" "value" "list" "identifier" "include" "file")
                  'symbols)
     . font-lock-keyword-face)
    ("\\_<XmN[A-Za-z]+" . font-lock-variable-name-face)
    ("\\_<Xm[A-Z][a-z][A-Za-z]*" . font-lock-type-face)
    ("\\_<Xm[A-Z][A-Z_]+" . font-lock-constant-face))
  "What is highlighted in a UIL module.")

;;;###autoload
(define-derived-mode uil-mode prog-mode "UIL"
  "Major mode for Motif UIL modules."
  (setq-local comment-start "! ")
  (setq-local font-lock-defaults '(uil-mode-font-lock)))

;;;###autoload
(add-to-list 'magic-mode-alist '(";GIL-[23]" . gil-mode))
;;;###autoload
(add-to-list 'auto-mode-alist '("\\.uil\\'" . uil-mode))

(provide 'gil-mode)
;;; gil-mode.el ends here
