# The only class of a practice package: it shows the application's own label.
.class public Ltav/practice/PlayerActivity;
.super Landroid/app/Activity;
.source "PlayerActivity.java"

.method public constructor <init>()V
    .registers 1
    invoke-direct {p0}, Landroid/app/Activity;-><init>()V
    return-void
.end method

.method protected onCreate(Landroid/os/Bundle;)V
    .registers 4
    invoke-super {p0, p1}, Landroid/app/Activity;->onCreate(Landroid/os/Bundle;)V
    new-instance v0, Landroid/widget/TextView;
    invoke-direct {v0, p0}, Landroid/widget/TextView;-><init>(Landroid/content/Context;)V
    invoke-virtual {p0}, Ltav/practice/PlayerActivity;->getTitle()Ljava/lang/CharSequence;
    move-result-object v1
    invoke-virtual {v0, v1}, Landroid/widget/TextView;->setText(Ljava/lang/CharSequence;)V
    invoke-virtual {p0, v0}, Ltav/practice/PlayerActivity;->setContentView(Landroid/view/View;)V
    return-void
.end method
