import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  struct Group2: View {
    // Group

    struct Group3: View {
      // Group

      struct Group4: View {
        // Group

        struct Group5: View {
          // Group

          struct Group6: View {
            // Group

            struct Group7: View {
              // Group

              struct Group8: View {
                // Group

                struct Group9: View {
                  // Group

                  struct Group10: View {
                    // Group

                    struct Group11: View {
                      // Group

                      struct Group12: View {
                        // Group

                        struct Group13: View {
                          // Group

                          struct Group14: View {
                            // Group

                            struct Group15: View {
                              // Group

                              struct Group16: View {
                                // Group

                                struct Group17: View {
                                  // Group

                                  struct Group18: View {
                                    // Group

                                    struct Group19: View {
                                      // Group

                                      struct Group20: View {
                                        // Group

                                        struct Group21: View {
                                          // Group

                                          struct Group22: View {
                                            // Group

                                            struct Group23: View {
                                              // Group

                                              struct Group24: View {
                                                // Group

                                                struct Group25: View {
                                                  // Group

                                                  struct Group26: View {
                                                    // Group

                                                    struct Group27: View {
                                                      // Group

                                                      struct Group28: View {
                                                        // Group

                                                        struct Group29: View {
                                                          // Group

                                                          struct Group30: View {
                                                            // Group

                                                            struct Group31: View {
                                                              // Group

                                                              struct Group32: View {
                                                                // Group

                                                                struct Group33: View {
                                                                  // Group

                                                                  struct Group34: View {
                                                                    // Group

                                                                    struct Group35: View {
                                                                      // Group

                                                                      struct Group36: View {
                                                                        // Group

                                                                        struct Group37: View {
                                                                          // Group

                                                                          struct Group38: View {
                                                                            // Group

                                                                            struct Group39: View {
                                                                              // Group

                                                                              struct Group40: View {
                                                                                // Group

                                                                                struct Group41: View {
                                                                                  // Group

                                                                                  struct Group42: View {
                                                                                    // Group

                                                                                    struct Group43: View {
                                                                                      // Group

                                                                                      struct Group44: View {
                                                                                        // Group

                                                                                        struct Group45: View {
                                                                                          // Group

                                                                                          struct Group46: View {
                                                                                            // Group

                                                                                            struct Group47: View {
                                                                                              // Group

                                                                                              struct Group48: View {
                                                                                                // Group

                                                                                                struct Group49: View {
                                                                                                  // Group

                                                                                                  struct Group50: View {
                                                                                                    // Group

                                                                                                    struct Group51: View {
                                                                                                      // Group

                                                                                                      struct Group52: View {
                                                                                                        // Group

                                                                                                        struct Group53: View {
                                                                                                          // Group

                                                                                                          struct Group54: View {
                                                                                                            // Group

                                                                                                            struct Group55: View {
                                                                                                              // Group

                                                                                                              struct Group56: View {
                                                                                                                // Group

                                                                                                                struct Group57: View {
                                                                                                                  // Group

                                                                                                                  struct Group58: View {
                                                                                                                    // Group

                                                                                                                    struct Group59: View {
                                                                                                                      // Group

                                                                                                                      struct Group60: View {
                                                                                                                        // Group

                                                                                                                        struct Group61: View {
                                                                                                                          // Group

                                                                                                                          struct Circle1: View {

                                                                                                                            static let intrinsicSize = CGSize(width: 6, height: 6)
                                                                                                                            static let origin        = CGPoint(x: -2, y: -1)

                                                                                                                            var body: some View {
                                                                                                                              Circle()
                                                                                                                                .fill(Color(red: 0.0392, green: 0.0431, blue: 0.0471))
                                                                                                                            }
                                                                                                                          }

                                                                                                                          var body: some View {
                                                                                                                            Circle1()
                                                                                                                              .frame(width: 6, height: 6, alignment: .topLeading)
                                                                                                                              .padding(.leading, -2)
                                                                                                                              .padding(.top, -1)
                                                                                                                              .rotationEffect(Angle(degrees: 413))
                                                                                                                              .offset(x: 0, y: 0)
                                                                                                                          }
                                                                                                                        }

                                                                                                                        var body: some View {
                                                                                                                          Group61()
                                                                                                                            .rotationEffect(Angle(degrees: 406))
                                                                                                                            .offset(x: 0, y: 0)
                                                                                                                        }
                                                                                                                      }

                                                                                                                      var body: some View {
                                                                                                                        Group60()
                                                                                                                          .rotationEffect(Angle(degrees: 399))
                                                                                                                          .offset(x: 0, y: 0)
                                                                                                                      }
                                                                                                                    }

                                                                                                                    var body: some View {
                                                                                                                      Group59()
                                                                                                                        .rotationEffect(Angle(degrees: 392))
                                                                                                                        .offset(x: 0, y: 0)
                                                                                                                    }
                                                                                                                  }

                                                                                                                  var body: some View {
                                                                                                                    Group58()
                                                                                                                      .rotationEffect(Angle(degrees: 385))
                                                                                                                      .offset(x: 0, y: 0)
                                                                                                                  }
                                                                                                                }

                                                                                                                var body: some View {
                                                                                                                  Group57()
                                                                                                                    .rotationEffect(Angle(degrees: 378))
                                                                                                                    .offset(x: 0, y: 0)
                                                                                                                }
                                                                                                              }

                                                                                                              var body: some View {
                                                                                                                Group56()
                                                                                                                  .rotationEffect(Angle(degrees: 371))
                                                                                                                  .offset(x: 0, y: 0)
                                                                                                              }
                                                                                                            }

                                                                                                            var body: some View {
                                                                                                              Group55()
                                                                                                                .rotationEffect(Angle(degrees: 364))
                                                                                                                .offset(x: 0, y: 0)
                                                                                                            }
                                                                                                          }

                                                                                                          var body: some View {
                                                                                                            Group54()
                                                                                                              .rotationEffect(Angle(degrees: 357))
                                                                                                              .offset(x: 0, y: 0)
                                                                                                          }
                                                                                                        }

                                                                                                        var body: some View {
                                                                                                          Group53()
                                                                                                            .rotationEffect(Angle(degrees: 350))
                                                                                                            .offset(x: 0, y: 0)
                                                                                                        }
                                                                                                      }

                                                                                                      var body: some View {
                                                                                                        Group52()
                                                                                                          .rotationEffect(Angle(degrees: 343))
                                                                                                          .offset(x: 0, y: 0)
                                                                                                      }
                                                                                                    }

                                                                                                    var body: some View {
                                                                                                      Group51()
                                                                                                        .rotationEffect(Angle(degrees: 336))
                                                                                                        .offset(x: 0, y: 0)
                                                                                                    }
                                                                                                  }

                                                                                                  var body: some View {
                                                                                                    Group50()
                                                                                                      .rotationEffect(Angle(degrees: 329))
                                                                                                      .offset(x: 0, y: 0)
                                                                                                  }
                                                                                                }

                                                                                                var body: some View {
                                                                                                  Group49()
                                                                                                    .rotationEffect(Angle(degrees: 322))
                                                                                                    .offset(x: 0, y: 0)
                                                                                                }
                                                                                              }

                                                                                              var body: some View {
                                                                                                Group48()
                                                                                                  .rotationEffect(Angle(degrees: 315))
                                                                                                  .offset(x: 0, y: 0)
                                                                                              }
                                                                                            }

                                                                                            var body: some View {
                                                                                              Group47()
                                                                                                .rotationEffect(Angle(degrees: 308))
                                                                                                .offset(x: 0, y: 0)
                                                                                            }
                                                                                          }

                                                                                          var body: some View {
                                                                                            Group46()
                                                                                              .rotationEffect(Angle(degrees: 301))
                                                                                              .offset(x: 0, y: 0)
                                                                                          }
                                                                                        }

                                                                                        var body: some View {
                                                                                          Group45()
                                                                                            .rotationEffect(Angle(degrees: 294))
                                                                                            .offset(x: 0, y: 0)
                                                                                        }
                                                                                      }

                                                                                      var body: some View {
                                                                                        Group44()
                                                                                          .rotationEffect(Angle(degrees: 287))
                                                                                          .offset(x: 0, y: 0)
                                                                                      }
                                                                                    }

                                                                                    var body: some View {
                                                                                      Group43()
                                                                                        .rotationEffect(Angle(degrees: 280))
                                                                                        .offset(x: 0, y: 0)
                                                                                    }
                                                                                  }

                                                                                  var body: some View {
                                                                                    Group42()
                                                                                      .rotationEffect(Angle(degrees: 273))
                                                                                      .offset(x: 0, y: 0)
                                                                                  }
                                                                                }

                                                                                var body: some View {
                                                                                  Group41()
                                                                                    .rotationEffect(Angle(degrees: 266))
                                                                                    .offset(x: 0, y: 0)
                                                                                }
                                                                              }

                                                                              var body: some View {
                                                                                Group40()
                                                                                  .rotationEffect(Angle(degrees: 259))
                                                                                  .offset(x: 0, y: 0)
                                                                              }
                                                                            }

                                                                            var body: some View {
                                                                              Group39()
                                                                                .rotationEffect(Angle(degrees: 252))
                                                                                .offset(x: 0, y: 0)
                                                                            }
                                                                          }

                                                                          var body: some View {
                                                                            Group38()
                                                                              .rotationEffect(Angle(degrees: 245))
                                                                              .offset(x: 0, y: 0)
                                                                          }
                                                                        }

                                                                        var body: some View {
                                                                          Group37()
                                                                            .rotationEffect(Angle(degrees: 238))
                                                                            .offset(x: 0, y: 0)
                                                                        }
                                                                      }

                                                                      var body: some View {
                                                                        Group36()
                                                                          .rotationEffect(Angle(degrees: 231))
                                                                          .offset(x: 0, y: 0)
                                                                      }
                                                                    }

                                                                    var body: some View {
                                                                      Group35()
                                                                        .rotationEffect(Angle(degrees: 224))
                                                                        .offset(x: 0, y: 0)
                                                                    }
                                                                  }

                                                                  var body: some View {
                                                                    Group34()
                                                                      .rotationEffect(Angle(degrees: 217))
                                                                      .offset(x: 0, y: 0)
                                                                  }
                                                                }

                                                                var body: some View {
                                                                  Group33()
                                                                    .rotationEffect(Angle(degrees: 210))
                                                                    .offset(x: 0, y: 0)
                                                                }
                                                              }

                                                              var body: some View {
                                                                Group32()
                                                                  .rotationEffect(Angle(degrees: 203))
                                                                  .offset(x: 0, y: 0)
                                                              }
                                                            }

                                                            var body: some View {
                                                              Group31()
                                                                .rotationEffect(Angle(degrees: 196))
                                                                .offset(x: 0, y: 0)
                                                            }
                                                          }

                                                          var body: some View {
                                                            Group30()
                                                              .rotationEffect(Angle(degrees: 189))
                                                              .offset(x: 0, y: 0)
                                                          }
                                                        }

                                                        var body: some View {
                                                          Group29()
                                                            .rotationEffect(Angle(degrees: 182))
                                                            .offset(x: 0, y: 0)
                                                        }
                                                      }

                                                      var body: some View {
                                                        Group28()
                                                          .rotationEffect(Angle(degrees: 175))
                                                          .offset(x: 0, y: 0)
                                                      }
                                                    }

                                                    var body: some View {
                                                      Group27()
                                                        .rotationEffect(Angle(degrees: 168))
                                                        .offset(x: 0, y: 0)
                                                    }
                                                  }

                                                  var body: some View {
                                                    Group26()
                                                      .rotationEffect(Angle(degrees: 161))
                                                      .offset(x: 0, y: 0)
                                                  }
                                                }

                                                var body: some View {
                                                  Group25()
                                                    .rotationEffect(Angle(degrees: 154))
                                                    .offset(x: 0, y: 0)
                                                }
                                              }

                                              var body: some View {
                                                Group24()
                                                  .rotationEffect(Angle(degrees: 147))
                                                  .offset(x: 0, y: 0)
                                              }
                                            }

                                            var body: some View {
                                              Group23()
                                                .rotationEffect(Angle(degrees: 140))
                                                .offset(x: 0, y: 0)
                                            }
                                          }

                                          var body: some View {
                                            Group22()
                                              .rotationEffect(Angle(degrees: 133))
                                              .offset(x: 0, y: 0)
                                          }
                                        }

                                        var body: some View {
                                          Group21()
                                            .rotationEffect(Angle(degrees: 126))
                                            .offset(x: 0, y: 0)
                                        }
                                      }

                                      var body: some View {
                                        Group20()
                                          .rotationEffect(Angle(degrees: 119))
                                          .offset(x: 0, y: 0)
                                      }
                                    }

                                    var body: some View {
                                      Group19()
                                        .rotationEffect(Angle(degrees: 112))
                                        .offset(x: 0, y: 0)
                                    }
                                  }

                                  var body: some View {
                                    Group18()
                                      .rotationEffect(Angle(degrees: 105))
                                      .offset(x: 0, y: 0)
                                  }
                                }

                                var body: some View {
                                  Group17()
                                    .rotationEffect(Angle(degrees: 98))
                                    .offset(x: 0, y: 0)
                                }
                              }

                              var body: some View {
                                Group16()
                                  .rotationEffect(Angle(degrees: 91))
                                  .offset(x: 0, y: 0)
                              }
                            }

                            var body: some View {
                              Group15()
                                .rotationEffect(Angle(degrees: 84))
                                .offset(x: 0, y: 0)
                            }
                          }

                          var body: some View {
                            Group14()
                              .rotationEffect(Angle(degrees: 77))
                              .offset(x: 0, y: 0)
                          }
                        }

                        var body: some View {
                          Group13()
                            .rotationEffect(Angle(degrees: 70))
                            .offset(x: 0, y: 0)
                        }
                      }

                      var body: some View {
                        Group12()
                          .rotationEffect(Angle(degrees: 63))
                          .offset(x: 0, y: 0)
                      }
                    }

                    var body: some View {
                      Group11()
                        .rotationEffect(Angle(degrees: 56))
                        .offset(x: 0, y: 0)
                    }
                  }

                  var body: some View {
                    Group10()
                      .rotationEffect(Angle(degrees: 49))
                      .offset(x: 0, y: 0)
                  }
                }

                var body: some View {
                  Group9()
                    .rotationEffect(Angle(degrees: 42))
                    .offset(x: 0, y: 0)
                }
              }

              var body: some View {
                Group8()
                  .rotationEffect(Angle(degrees: 35))
                  .offset(x: 0, y: 0)
              }
            }

            var body: some View {
              Group7()
                .rotationEffect(Angle(degrees: 28))
                .offset(x: 0, y: 0)
            }
          }

          var body: some View {
            Group6()
              .rotationEffect(Angle(degrees: 21))
              .offset(x: 0, y: 0)
          }
        }

        var body: some View {
          Group5()
            .rotationEffect(Angle(degrees: 14))
            .offset(x: 0, y: 0)
        }
      }

      var body: some View {
        Group4()
          .rotationEffect(Angle(degrees: 7))
          .offset(x: 0, y: 0)
      }
    }

    var body: some View {
      Group3()
        .rotationEffect(Angle(degrees: 0))
        .offset(x: 0, y: 0)
    }
  }

  var body: some View {
    Group2()
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
