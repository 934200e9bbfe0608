#pragma once

#include "common/LazyIconEngine_p.h"

/// Gives the command buttons that the ribbon editor's and the quick access
/// editor's forms share (same names, same images) their icons.
template <typename Form>
void setEditorButtonIcons(Form* form)
{
    LazyIconEngine::setIcons({
        {form->addItem, ":/Tessaro/go-top-icone-5674-32.png"},
        {form->addGroupItem, ":/Tessaro/add-group-action.png"},
        {form->addSeparator, ":/Tessaro/add-separator.png"},
        {form->up, ":/Tessaro/1uparrow.png"},
        {form->down, ":/Tessaro/1downarrow.png"},
        {form->del, ":/Tessaro/1remove.png"},
    });
}
